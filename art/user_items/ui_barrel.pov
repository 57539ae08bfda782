// A cask with iron hoops: can be blown up.
#version 3.7;
#include "stage.inc"
Stage(38, 7.6)

#declare Side = spline { cubic_spline -4, <6.4, 0, 0>, 0, <7.2, 0, 0>, 4, <8.5, 0, 0>, 8, <8.9, 0, 0>, 12, <8.5, 0, 0>, 16, <7.2, 0, 0>, 20, <6.4, 0, 0> }
#macro Hoop(Y)
  cylinder { <0, Y - 0.8, 0>, <0, Y + 0.8, 0>, Side(Y).x + 0.3 texture { pigment { rgb <0.16, 0.17, 0.20> } finish { ambient 0.25 diffuse 0.8 specular 0.7 roughness 0.04 } } }
#end
union {
  difference {
    union {
      #for (I, 0, 31)
        cone { <0, I / 2, 0>, Side(I / 2).x, <0, (I + 1) / 2, 0>, Side((I + 1) / 2).x }
      #end
    }
    cylinder { <0, 15, 0>, <0, 17, 0>, 6.3 }
    texture {
      pigment {
        radial frequency 14 color_map { [0.00 rgb <0.16, 0.06, 0.015>] [0.10 rgb <0.70, 0.30, 0.07>] [0.85 rgb <0.60, 0.24, 0.05>] [1.00 rgb <0.16, 0.06, 0.015>] }
      }
      finish { ambient 0.2 diffuse 0.85 specular 0.15 roughness 0.06 }
    }
  }
  #for (I, 0, 3)
    box { <-6.2, 14.5, -6 + 3.1 * I>, <6.2, 15.05, -3.2 + 3.1 * I> texture { pigment { rgb <0.80, 0.45, 0.15> * (0.9 + 0.1 * mod(I, 2)) } finish { ambient 0.2 diffuse 0.85 } } }
  #end
  Hoop(2.6) Hoop(13.2)
  scale <1, 0.86, 1>
}
