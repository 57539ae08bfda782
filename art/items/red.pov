// The hot item: a chili, broad at the top under a green cap, pointed below.
#version 3.7;
#include "item.inc"

ItemStage(16, 24, 14)

#declare Flesh = spline {
  cubic_spline
  -1.2, <0.1, 0, 0>,
  -1.0, <0.35, 0, 0>,
  -0.6, <1.75, 0, 0>,
  -0.1, <3.1, 0, 0>,
   0.4, <4.2, 0, 0>,
   0.75, <4.3, 0, 0>,
   0.95, <3.2, 0, 0>,
   1.1, <1.5, 0, 0>
}
#declare Stalk = spline {
  cubic_spline
  -1.2, <0.9, 0, 0>,
  -1.0, <1.0, 0, 0>,
   0.0, <0.9, 0, 0>,
   1.0, <1.1, 0, 0>,
   1.2, <1.1, 0, 0>
}

union {
  merge {
    BentBody(13, 34, Flesh, 30)
    pigment { rgb <1.0, 0.030, 0.018> }
    finish { ambient 0.24 diffuse 0.80 specular 1.7 roughness 0.035 reflection { 0.02, 0.16 } }
    translate -2 * y
  }
  merge {
    #for (I, 0, 4)
      sphere { 0, 1 scale <2.1, 1.2, 3.1> translate <0, 0, 2.1> rotate x * -14 rotate y * 72 * I }
    #end
    sphere { 0, 2.3 scale <1, 0.62, 1> }
    union { BentBody(-6, 26, Stalk, 8) rotate z * -14 translate <0, 2.6, 0> }
    pigment { rgb <0.34, 0.86, 0.12> }
    finish { ambient 0.22 diffuse 0.75 specular 0.25 roughness 0.06 }
    rotate z * -26
    translate <2.1, 5.6, 0>
  }
  rotate z * 12
  translate <-1.2, -0.8, 0>
  rotate y * (Turn + 20)
}
