// A cluster of violet crystals: withstands TNT.
#version 3.7;
#include "stage.inc"
Stage(48, 4.6)

#declare R = seed(5);
#macro Shard(At, Height, Width, LeanX, LeanZ, Tone)
  intersection {
    #for (I, 0, 5)
      plane { z, Width rotate y * (60 * I + 17) }
      plane { z, Width * 0.72 rotate x * -38 translate Height * 0.62 * y rotate y * (60 * I + 17) }
    #end
    plane { -y, 3 }
    rotate <LeanX, 0, LeanZ>
    translate At
    texture {
      pigment { gradient y scale 16 translate -3 * y color_map { [0.0 rgb <0.36, 0.06, 0.62> * Tone] [0.6 rgb <0.72, 0.26, 0.98> * Tone] [1.0 rgb <0.98, 0.80, 1.0> * Tone] } }
      finish { ambient 0.30 diffuse 0.6 specular 0.9 roughness 0.015 reflection { 0.04, 0.3 } }
    }
  }
#end
Shard(<0.2, 0, 1>, 15.5, 3.4, 0, 2, 1.05)
Shard(<-4.6, 0, -0.5>, 10.5, 2.7, 6, 17, 0.92)
Shard(<4.6, 0, 0.2>, 11.5, 2.8, 4, -19, 1.0)
Shard(<-1.9, 0, -4.4>, 7.2, 2.3, -18, 8, 1.1)
Shard(<3.0, 0, -4.6>, 6.2, 2.2, -20, -12, 0.95)
#for (I, 0, 9)
  sphere { <14.5 * (rand(R) - 0.5), -0.6, 8 * (rand(R) - 0.5) - 1>, 1.9 scale <1, 0.8, 1> Plain(<0.26, 0.16, 0.36> * (0.8 + 0.4 * rand(R))) }
#end
