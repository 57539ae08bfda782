// A white cloud with a flash in it: can be blown up.
#version 3.7;
#include "stage.inc"
Stage(90, 0)

#macro Puff(At, Size)
  sphere { 0, Size scale <1, 0.7, 1> translate At texture { pigment { rgb <0.86, 0.88, 0.95> } finish { ambient 0.42 diffuse 0.75 } } }
#end
Puff(<-4.6, 0, -3.4>, 4.8)
Puff(<4.4, 0, -3.8>, 4.6)
Puff(<-5.2, 0, 3.4>, 4.2)
Puff(<5.2, 0, 3.0>, 4.3)
Puff(<0, 1, 4.8>, 4.9)
Puff(<0, 1.5, -1.0>, 5.6)
Puff(<0, 0, -5.6>, 3.8)
// A flash.
union {
  prism {
    linear_spline 6.2, 6.6, 7
    <1.6, 5.2>, <-3.0, -0.6>, <-0.4, -0.6>, <-1.8, -5.6>, <3.4, 0.9>, <0.6, 0.9>, <1.6, 5.2>
  }
  pigment { rgb <1.0, 0.66, 0.02> } finish { ambient 0.9 diffuse 0.2 }
}
