// Cooled lava: plates of dark basalt, and between some of them a last glow.
#version 3.7;
#include "field.inc"

#declare Bend = function { pattern { bozo turbulence 0.4 octaves 3 scale 60 translate 7 } }
#declare Joint = function { pattern { crackle form <-1, 1, 0> scale 62 turbulence 0.12 octaves 2 translate <3, 8, 2> } }
#declare Glow = function { pattern { bozo turbulence 0.3 octaves 3 scale 105 translate <11, 4, 0> } }
#declare Grain = function { pattern { granite scale 16 } }
#declare Open = function { max(0, 1 - Joint(x, y, 0) / 0.050) }
#declare Hot = function { max(0, min(1, (Glow(x, y, 0) - 0.50) * 4)) }

plane {
  z, 0
  texture {
    pigment {
      function { min(0.999, max(0, 0.36 + 0.30 * (Cloud(x, y, 0) - 0.5) + 0.34 * (Grain(x, y, 0) - 0.5))) }
      color_map { [0.1 rgb <0.062, 0.064, 0.074>] [0.5 rgb <0.098, 0.098, 0.108>] [0.9 rgb <0.150, 0.146, 0.150>] }
    }
    normal { function { 5 * min(Joint(x, y, 0), 0.10) / 0.10 + 1.2 * Grain(x, y, 0) } -0.55 accuracy 0.02 }
    finish { ambient 0.16 diffuse 0.95 }
  }
}
// The glow lies over it, where plates gape and the ground is hot.
plane {
  z, 0.01
  texture {
    pigment {
      function { min(0.999, max(0, pow(Open(x, y, 0), 1.6) * (0.25 + 0.75 * Hot(x, y, 0)))) }
      color_map {
        [0.00 rgbt <0.03, 0.015, 0.015, 1>]
        [0.16 rgbt <0.05, 0.015, 0.010, 0.45>]
        [0.34 rgbt <0.22, 0.030, 0.008, 0.15>]
        [0.70 rgbt <0.62, 0.120, 0.012, 0>]
        [1.00 rgbt <0.95, 0.340, 0.050, 0>]
      }
    }
    finish { ambient 1 diffuse 0 }
  }
}
