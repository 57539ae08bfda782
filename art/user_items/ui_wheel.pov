// A water wheel in its trough, seen from the side; one paddle is newer than the others.
#version 3.7;
#include "stage.inc"
Stage(12, 0)

#declare Turn = clock * 360;
#macro Wood(Tone)
  texture { pigment { granite scale <2, 6, 2> color_map { [0.2 rgb <0.42, 0.19, 0.05> * Tone] [0.8 rgb <0.70, 0.36, 0.11> * Tone] } } finish { ambient 0.22 diffuse 0.85 } }
#end
union {
  #for (I, 0, 7)
    object { Round_Box_Union(<-0.75, 5.6, -3.2>, <0.75, 8.9, 3.2>, 0.3) rotate z * 45 * I Wood((I = 0 ? 1.9 : 1)) }
    cylinder { <0, 0, -2.4>, <0, 6.5, -2.4>, 0.6 rotate z * (45 * I) Wood(0.85) }
  #end
  difference {
    cylinder { <0, 0, -3.0>, <0, 0, 3.0>, 7.0 }
    cylinder { <0, 0, -4>, <0, 0, 4>, 5.4 }
    Wood(1.15)
  }
  cylinder { <0, 0, -4>, <0, 0, 4>, 1.7 texture { pigment { rgb <0.55, 0.57, 0.62> } finish { ambient 0.2 diffuse 0.8 specular 0.6 roughness 0.05 } } }
  rotate z * -Turn
}
// Water: the trough below, a little wave running with the wheel.
#for (I, 0, 31)
  #local X = -8.3 + 16.6 * I / 31;
  cylinder {
    <X, -8.0, -4.4>, <X, -6.0 + 0.8 * sin(2 * pi * (I / 11 - clock * 7)), -4.4>, 0.42
    pigment { rgb <0.12, 0.50, 0.92> }
    finish { ambient 0.35 diffuse 0.7 specular 0.5 roughness 0.05 }
  }
  sphere {
    <X, -6.0 + 0.8 * sin(2 * pi * (I / 11 - clock * 7)), -4.4>, 0.62
    pigment { rgb <0.78, 0.93, 1.0> }
    finish { ambient 0.45 diffuse 0.6 }
  }
#end
