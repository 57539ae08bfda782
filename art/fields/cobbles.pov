// A yard of round cobbles, cool and grey.
#version 3.7;
#include "field.inc"

#declare Pebble = pigment { crackle form <-1, 1, 0> scale 27 color_map { [0 rgb 0] [1 rgb 1] } }
#declare Cell = function { pattern { crackle form <-1, 1, 0> scale 27 } }
#declare Tone = function { pattern { crackle solid scale 27 } }
#declare Grain = function { pattern { granite scale 20 } }

// Height rises steeply from the joints and levels off to a low dome.
#declare Dome = function(D) { min(1, max(0, D - 0.03) / 0.34) }
#declare Relief = function { pow(1 - pow(1 - Dome(Cell(x, y, 0)), 2), 0.5) }

plane {
  z, 0
  texture {
    pigment {
      function { min(1, max(0, Cell(x, y, 0) - 0.02) / 0.10) * (0.55 + 0.35 * Tone(x, y, 0) + 0.22 * (Grain(x, y, 0) - 0.5)) }
      color_map {
        [0.00 rgb <0.040, 0.040, 0.036>]
        [0.40 rgb <0.122, 0.132, 0.150>]
        [0.75 rgb <0.170, 0.176, 0.188>]
        [1.00 rgb <0.220, 0.220, 0.222>]
      }
    }
    normal { function { 6.0 * Relief(x, y, 0) + 0.8 * Grain(x, y, 0) } -0.55 accuracy 0.02 }
    finish { ambient 0.12 diffuse 0.92 }
  }
}
