// A courtyard of blue glazed tiles by moonlight; here and there a tile carries a star.
#version 3.7;
#include "field.inc"

#declare R = seed(77);
#declare Side = 40;

#macro Glaze(Tone)
  texture {
    pigment {
      bozo turbulence 0.6 scale 30 translate 900 * rand(R)
      color_map { [0.2 rgb <0.052, 0.080, 0.255> * Tone] [0.8 rgb <0.082, 0.118, 0.335> * Tone] }
    }
    normal { bumps 0.12 scale 14 translate 90 * rand(R) }
    finish { ambient 0.14 diffuse 0.88 specular 0.10 roughness 0.06 }
  }
#end

// An inlaid star of eight points, four long and four short.
#declare Star = union {
  #for (I, 0, 7)
    #local Reach = (mod(I, 2) ? 0.52 : 1);
    triangle { <0, Reach, 0>, <0.17, 0, 0>, <-0.17, 0, 0> rotate z * 45 * I }
  #end
}

#macro Tile(X, Y)
  #local Tone = 0.94 + 0.26 * (rand(R) - 0.5);
  union {
    object { Round_Box_Union(<0.7, 0.7, -4>, <Side - 0.7, Side - 0.7, 2.2>, 1.7) Glaze(Tone) }
    #if (mod(X + 2 * Y + 60, 5) = 0)
      object {
        Star scale 11 translate <Side / 2, Side / 2, 2.4>
        pigment { rgb <0.19, 0.24, 0.50> }
        finish { ambient 0.15 diffuse 0.9 }
      }
    #end
    translate <X * Side - 10, Y * Side - 10, 0>
  }
#end

#for (J, 0, 12)
  #for (I, 0, 16)
    Tile(I, J)
  #end
#end
plane { z, 0 pigment { rgb <0.030, 0.034, 0.070> } }
