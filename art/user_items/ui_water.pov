// Running water that fills its cell and goes on in the next one: withstands TNT.
#version 3.7;
#include "stage.inc"
Stage(90, 0)

// Waves whose lengths divide the cell and whose rounds are whole, so that cells and cycles join.
#declare A = 2 * pi / 20;
#declare T = 2 * pi * clock;
#declare Wave = function(u1, v1) {
  0.34 * sin(A * (u1 + 2 * v1) - 3 * T) + 0.30 * sin(A * (2 * u1 - v1) + 2 * T + 1.3) + 0.24 * sin(A * (3 * u1 + v1) - 2 * T + 2.1)
  + 0.20 * sin(A * (u1 - 3 * v1) + 3 * T + 0.4)
}
plane {
  y, 0
  pigment {
    function { min(0.99, max(0.0, 0.5 + 0.5 * Wave(x, z))) }
    color_map {
      [0.00 rgb <0.010, 0.105, 0.42>]
      [0.45 rgb <0.025, 0.225, 0.66>]
      [0.72 rgb <0.085, 0.420, 0.88>]
      [0.84 rgb <0.55, 0.86, 1.0>]
      [1.00 rgb <0.92, 1.0, 1.0>]
    }
  }
  finish { ambient 1 diffuse 0 }
}
