// Molten rock under a broken crust, from cell to cell: withstands TNT.
#version 3.7;
#include "stage.inc"
Stage(90, 0)

#declare A = 2 * pi / 20;
#declare T = 2 * pi * clock;
#declare Heat = function(u1, v1) {
  0.42 * sin(A * (u1 + v1) + T) * sin(A * (u1 - v1) - T + 0.7) + 0.34 * sin(A * (2 * u1 + v1) - 2 * T + 0.9) + 0.30 * sin(A * (u1 - 2 * v1) + T + 2.6)
  + 0.20 * sin(A * (3 * u1 + 2 * v1) + 2 * T)
}
plane {
  y, 0
  pigment {
    function { min(0.99, max(0.0, 0.5 + 0.42 * Heat(x, z))) }
    color_map {
      [0.00 rgb <0.22, 0.012, 0.006>]
      [0.22 rgb <0.55, 0.030, 0.006>]
      [0.50 rgb <1.00, 0.130, 0.010>]
      [0.74 rgb <1.00, 0.40, 0.03>]
      [0.95 rgb <1.00, 0.85, 0.30>]
    }
  }
  finish { ambient 1 diffuse 0 }
}
