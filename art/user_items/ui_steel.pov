// A steel block with warning stripes: withstands everything.
#version 3.7;
#include "stage.inc"
Stage(66, 6)

union {
  object {
    Round_Box_Union(<-9.4, 0, -8.8>, <9.4, 9, 8.8>, 1.0)
    texture {
      pigment { gradient x + z scale 5.4 translate 1.2 * x color_map { [0.5 rgb <1.0, 0.66, 0.02>] [0.5 rgb <0.035, 0.033, 0.036>] } }
      finish { ambient 0.22 diffuse 0.8 specular 0.3 roughness 0.04 }
    }
  }
  object {
    Round_Box_Union(<-6.4, 5, -6.0>, <6.4, 10.4, 6.0>, 1.0)
    texture {
      pigment { granite scale <9, 9, 0.8> color_map { [0.2 rgb <0.50, 0.53, 0.58>] [0.8 rgb <0.66, 0.69, 0.74>] } }
      finish { ambient 0.2 diffuse 0.7 specular 0.5 roughness 0.05 }
    }
  }
  #for (I, 0, 3)
    sphere { <4.3 * (mod(I, 2) * 2 - 1), 10.3, 4.0 * (floor(I / 2) * 2 - 1)>, 1.2 scale <1, 1, 1> Plain(<0.30, 0.32, 0.36>) }
  #end
}
