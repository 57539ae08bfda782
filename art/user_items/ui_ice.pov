// A block of clear ice with a frosty rim: can be blown up.
#version 3.7;
#include "stage.inc"
Stage(66, 6)

union {
  object {
    Round_Box_Union(<-9.2, 0, -8.6>, <9.2, 9, 8.6>, 1.9)
    texture {
      pigment { bozo turbulence 0.7 scale 7 color_map { [0.2 rgb <0.20, 0.62, 0.92>] [0.6 rgb <0.42, 0.80, 0.98>] [0.9 rgb <0.70, 0.93, 1.0>] } }
      finish { ambient 0.26 diffuse 0.7 specular 1.0 roughness 0.02 reflection { 0.05, 0.35 } }
    }
  }
  difference {
    object { Round_Box_Union(<-9.3, 5.4, -8.7>, <9.3, 9.35, 8.7>, 1.9) }
    box { <-6.6, 4, -6.2>, <6.6, 12, 6.2> }
    Plain(<0.93, 0.97, 1.0>)
  }
  union {
    cylinder { <-4.5, 9.1, 3.4>, <-0.8, 9.1, -1.2>, 0.55 }
    cylinder { <-1.9, 9.1, 0.2>, <3.6, 9.1, 2.2>, 0.45 }
    cylinder { <2.2, 9.1, -4.4>, <5.0, 9.1, -1.8>, 0.5 }
    Plain(<0.95, 1.0, 1.0>)
  }
}
