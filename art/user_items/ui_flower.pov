// A bed of flowers in a wooden box: can be blown up.
#version 3.7;
#include "stage.inc"
Stage(72, 2.0)

#declare R = seed(11);
difference {
  object { Round_Box_Union(<-9.4, -3, -9.0>, <9.4, 3.6, 9.0>, 0.9) }
  box { <-7.6, 0, -7.2>, <7.6, 6, 7.2> }
  texture { pigment { granite scale <9, 2, 2> color_map { [0.2 rgb <0.46, 0.22, 0.07>] [0.8 rgb <0.74, 0.42, 0.16>] } } finish { ambient 0.2 diffuse 0.85 } }
}
box { <-8, -1, -8>, <8, 1.6, 8> Plain(<0.05, 0.16, 0.03>) }
#for (I, 0, 150)
  sphere {
    0, 1.2 scale <1.4, 0.5, 0.7>
    rotate <30 * (rand(R) - 0.5), 360 * rand(R), 0>
    translate <14.6 * (rand(R) - 0.5), 2.2 + rand(R), 13.8 * (rand(R) - 0.5)>
    Plain(<0.06, 0.34, 0.05> * (0.7 + 0.6 * rand(R)))
  }
#end
#macro Flower(At, Colour, Heart)
  union {
    #for (P, 0, 4)
      sphere { 0, 1.42 scale <1, 0.35, 1> translate <1.62 * cos(radians(72 * P)), 0, 1.62 * sin(radians(72 * P))> Plain(Colour) }
    #end
    sphere { 0, 1.15 scale <1, 0.7, 1> translate 0.3 * y Plain(Heart) }
    translate At
  }
#end
Flower(<-4.3, 4.4, 3.9>, <1.0, 0.20, 0.42>, <1.0, 0.85, 0.15>)
Flower(<3.9, 4.6, 4.2>, <1.0, 0.96, 0.90>, <1.0, 0.72, 0.05>)
Flower(<0.0, 4.8, -0.2>, <0.62, 0.30, 1.0>, <1.0, 0.92, 0.35>)
Flower(<-4.2, 4.6, -4.2>, <1.0, 0.80, 0.12>, <0.80, 0.28, 0.03>)
Flower(<4.3, 4.4, -3.9>, <1.0, 0.30, 0.16>, <1.0, 0.88, 0.25>)
