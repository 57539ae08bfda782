// Wind-rippled sand.
#version 3.7;
#include "field.inc"

#declare Warp = function { pattern { bozo turbulence 0.4 octaves 3 scale 120 } }
#declare Swell = function { pattern { bozo scale 60 translate 31 } }
#declare Grain = function { pattern { granite scale 5 } }
#declare Ripple = function { 0.5 + 0.5 * sin((x * 0.30 + y) * 0.42 + 15 * Warp(x, y, 0)) }

plane {
  z, 0
  texture {
    pigment {
      function { 0.42 * Cloud(x, y, 0) + 0.16 * Ripple(x, y, 0) * Swell(x, y, 0) + 0.42 * Grain(x, y, 0) }
      color_map { [0.2 rgb <0.58, 0.42, 0.225>] [0.5 rgb <0.70, 0.52, 0.30>] [0.8 rgb <0.81, 0.62, 0.38>] }
    }
    normal { function { 4.2 * Ripple(x, y, 0) * (0.25 + Swell(x, y, 0)) + 0.5 * Grain(x, y, 0) } -0.55 accuracy 0.02 }
    finish { ambient 0.10 diffuse 0.95 }
  }
}

// A few pebbles, half buried.
#declare R = seed(52);
#for (I, 1, 46)
  #local S = 0.8 + 1.9 * pow(rand(R), 2);
  #local Shade = 0.7 + 0.5 * rand(R);
  sphere {
    0, S
    scale <1.3, 0.9, 0.6>
    rotate z * 180 * rand(R)
    translate <640 * rand(R), 480 * rand(R), 0.2>
    pigment { rgb <0.36, 0.29, 0.20> * Shade }
    finish { ambient 0.12 diffuse 0.9 }
  }
#end
