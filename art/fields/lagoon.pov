// Shallow water over pale sand, a net of light on the ground.
#version 3.7;
#include "field.inc"

#declare Deep = function { pattern { bozo turbulence 0.5 octaves 4 scale 170 translate 5 } }
#declare NetA = function { pattern { crackle form <-1, 1, 0> turbulence 0.35 octaves 3 scale 44 } }
#declare NetB = function { pattern { crackle form <-1, 1, 0> turbulence 0.35 octaves 3 scale 29 translate 17 } }
#declare Grain = function { pattern { granite scale 8 } }
#declare Glow = function(D) { pow(max(0, 1 - D / 0.22), 2) }

plane {
  z, 0
  texture {
    pigment {
      function {
        min(1, max(0, 0.26 + 0.34 * (Deep(x, y, 0) - 0.5) + 0.10 * (Grain(x, y, 0) - 0.5)
          + 0.26 * Glow(NetA(x, y, 0)) + 0.18 * Glow(NetB(x, y, 0))))
      }
      color_map {
        [0.00 rgb <0.080, 0.300, 0.300>]
        [0.35 rgb <0.160, 0.420, 0.385>]
        [0.70 rgb <0.330, 0.580, 0.490>]
        [1.00 rgb <0.600, 0.780, 0.650>]
      }
    }
    finish { ambient 0.15 diffuse 0.85 }
  }
}
