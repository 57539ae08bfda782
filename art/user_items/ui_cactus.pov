// A barrel cactus in flower: can be blown up.
#version 3.7;
#include "stage.inc"
Stage(50, 5.4)

#declare Ribs = 11;
union {
  isosurface {
    function {
      sqrt(x * x + pow(y * 0.92, 2) + z * z) - 8.0 - 0.75 * cos(Ribs * atan2(z, x)) * min(1, (x * x + z * z) / 12)
    }
    contained_by { box { <-9.4, -4, -9.4>, <9.4, 9.4, 9.4> } }
    max_gradient 3
    texture {
      pigment { radial frequency Ribs color_map { [0 rgb <0.20, 0.72, 0.16>] [0.5 rgb <0.015, 0.17, 0.05>] [1 rgb <0.20, 0.72, 0.16>] } }
      finish { ambient 0.2 diffuse 0.85 specular 0.1 }
    }
  }
  #for (I, 0, Ribs - 1)
    #for (J, 0, 2)
      #local H = 18 + 26 * J;
      #local A = 360 * I / Ribs;
      cone {
        <8.6 * cos(radians(H)) * cos(radians(A)), 9.2 * sin(radians(H)), 8.6 * cos(radians(H)) * sin(radians(A))>, 0.62
        <10.4 * cos(radians(H)) * cos(radians(A)), 10.6 * sin(radians(H)), 10.4 * cos(radians(H)) * sin(radians(A))>, 0.15
        Plain(<0.98, 0.95, 0.80>)
      }
    #end
  #end
  #for (I, 0, 5)
    sphere { 0, 1 scale <2.1, 0.6, 1.25> translate <1.9, 0, 0> rotate z * 25 rotate y * 60 * I translate <0, 8.6, 0> Plain(<0.98, 0.12, 0.42>) }
  #end
  sphere { <0, 9.4, 0>, 1.1 Plain(<1.0, 0.80, 0.10>) }
  rotate y * 10
  scale 0.92
}
