// A fan behind a square housing; one of its three blades has a red tip. Two turns per cycle.
#version 3.7;
#include "stage.inc"
Stage(90, 0)

#declare Turn = clock * 720;
#macro Blade(Angle, Tip)
  union {
    difference {
      cylinder { <0, -0.3, 0>, <0, 0.3, 0>, 7.0 }
      plane { z, 0 rotate y * 28 }
      plane { -z, 0 rotate y * -38 }
      Plain(<0.60, 0.64, 0.70>)
    }
    difference {
      cylinder { <0, -0.4, 0>, <0, 0.4, 0>, 7.05 }
      cylinder { <0, -1, 0>, <0, 1, 0>, 5.0 }
      plane { z, 0 rotate y * 28 }
      plane { -z, 0 rotate y * -38 }
      Plain(Tip)
    }
    rotate x * -12
    translate 2 * y
    rotate y * Angle
  }
#end
union {
  difference {
    object { Round_Box_Union(<-9.2, -4, -9.2>, <9.2, 4, 9.2>, 1.6) }
    cylinder { <0, -1, 0>, <0, 6, 0>, 7.5 }
    Plain(<0.05, 0.30, 0.60>)
  }
  torus { 7.7, 0.7 translate 4 * y Plain(<0.75, 0.78, 0.82>) }
  cylinder { <0, -2, 0>, <0, -1, 0>, 8 Plain(<0.035, 0.04, 0.05>) }
  union {
    Blade(0, <1.0, 0.12, 0.05>)
    Blade(120, <0.60, 0.64, 0.70>)
    Blade(240, <0.60, 0.64, 0.70>)
    sphere { 0, 2.2 scale <1, 0.6, 1> translate 2.6 * y Plain(<1.0, 0.72, 0.10>) }
    rotate y * Turn
  }
  #for (I, 0, 3)
    sphere { <7.3 * (mod(I, 2) * 2 - 1), 4, 7.3 * (floor(I / 2) * 2 - 1)>, 0.95 Plain(<0.80, 0.82, 0.86>) }
  #end
}
