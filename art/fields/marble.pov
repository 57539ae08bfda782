// A hall of polished marble, lilac and pale squares set cornerwise.
#version 3.7;
#include "field.inc"

#declare R = seed(19);
#declare Side = 56;

#macro Slab(Low, High, Vein)
  texture {
    pigment {
      marble turbulence 1.1 octaves 5 scale 34 rotate z * 180 * rand(R) translate 700 * <rand(R), rand(R), rand(R)>
      color_map { [0.00 rgb Low] [0.55 rgb (Low + High) / 2] [0.90 rgb High] [0.97 rgb Vein] [1.00 rgb High] }
    }
    finish { ambient 0.14 diffuse 0.88 specular 0.06 roughness 0.1 }
  }
#end

union {
  #for (J, -7, 14)
    #for (I, -1, 16)
      object {
        Round_Box_Union(<0.5, 0.5, -4>, <Side - 0.5, Side - 0.5, 2>, 0.9)
        #if (mod(I + J + 40, 2))
          Slab(<0.225, 0.165, 0.255>, <0.265, 0.200, 0.300>, <0.340, 0.285, 0.370>)
        #else
          Slab(<0.310, 0.265, 0.320>, <0.360, 0.315, 0.365>, <0.250, 0.200, 0.280>)
        #end
        translate <I * Side, J * Side, 0>
      }
    #end
  #end
  rotate z * 45
  translate <0, -120, 0>
}
plane { z, 0 pigment { rgb <0.09, 0.07, 0.10> } }
