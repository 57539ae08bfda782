// A pale boulder: withstands everything.
#version 3.7;
#include "stage.inc"
Stage(50, 4.4)

#declare Bumps = function { pattern { bozo scale 4.2 translate <3, 9, 4> } }
#declare Cracks = function { pattern { crackle form <-1, 1, 0> scale 6.5 translate <1, 3, 2> } }
isosurface {
  function { sqrt(x * x / 1.05 + pow(y * 1.12, 2) + z * z) - 9.0 + 2.4 * Bumps(x, y, z) - 0.9 * min(Cracks(x, y, z), 0.25) * 4 }
  contained_by { box { <-10, -6, -10>, <10, 9, 10> } }
  max_gradient 5
  accuracy 0.01
  texture {
    pigment { granite scale 7 color_map { [0.2 rgb <0.55, 0.53, 0.47>] [0.5 rgb <0.78, 0.76, 0.68>] [0.8 rgb <0.92, 0.90, 0.82>] } }
    normal { granite 0.25 scale 4 }
    finish { ambient 0.16 diffuse 0.95 }
  }
}
