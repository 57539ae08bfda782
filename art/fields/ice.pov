// A frozen pond: deep and shallow patches, snow dust, a few long cracks.
#version 3.7;
#include "field.inc"

#declare Depth = function { pattern { bozo turbulence 0.6 octaves 5 scale 130 translate 7 } }
#declare Dust = function { pattern { wrinkles scale <60, 26, 60> rotate z * -24 } }
#declare CrackA = function { pattern { crackle form <-1, 1, 0> turbulence 0.25 octaves 4 lambda 2.6 scale 150 translate 3 } }
#declare CrackB = function { pattern { crackle form <-1, 1, 0> turbulence 0.3 octaves 4 scale 62 translate 11 } }
#declare Near = function(D, W) { max(0, 1 - D / W) }

plane {
  z, 0
  texture {
    pigment {
      function {
        min(1, 0.36 + 0.42 * (Depth(x, y, 0) - 0.5) + 0.26 * Dust(x, y, 0)
          + 0.34 * Near(CrackA(x, y, 0), 0.016) + 0.13 * Near(CrackA(x, y, 0), 0.10)
          + 0.14 * Near(CrackB(x, y, 0), 0.03) * Depth(x, y, 0))
      }
      color_map {
        [0.00 rgb <0.17, 0.34, 0.47>]
        [0.35 rgb <0.26, 0.44, 0.56>]
        [0.70 rgb <0.42, 0.59, 0.68>]
        [1.00 rgb <0.78, 0.88, 0.92>]
      }
    }
    normal { function { 1.2 * Dust(x, y, 0) - 2.5 * Near(CrackA(x, y, 0), 0.03) } -0.5 accuracy 0.02 }
    finish { ambient 0.12 diffuse 0.88 specular 0.05 roughness 0.1 }
  }
}
