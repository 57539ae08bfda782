// A plank crate with a cross brace: can be blown up.
#version 3.7;
#include "stage.inc"
Stage(66, 9)

#declare R = seed(4);
#macro Plank(Near, Far, Lengthwise, Tone)
  object {
    Round_Box_Union(Near, Far, 0.5)
    texture {
      pigment {
        granite scale (Lengthwise ? <14, 2, 1.2> : <1.2, 14, 1.2>) translate 60 * rand(R)
        color_map { [0.2 rgb <0.44, 0.16, 0.03> * Tone] [0.8 rgb <0.76, 0.36, 0.09> * Tone] }
      }
      finish { ambient 0.2 diffuse 0.85 specular 0.08 }
    }
  }
#end
#declare Face = union {
  #for (I, 0, 2)
    Plank(<-6.6 + 4.5 * I, -8.6, -1>, <-2.5 + 4.5 * I, 8.6, 0.3>, 0, 0.52)
  #end
  box { <-9, -9, -2>, <9, 9, -0.6> Plain(<0.06, 0.025, 0.008>) }
  union {
    Plank(<-11, -1.9, -1>, <11, 1.9, 1.6>, 1, 0.92)
    rotate z * 45
  }
  Plank(<-9.3, -9.3, -1>, <9.3, -6.0, 2.6>, 1, 1)
  Plank(<-9.3, 6.0, -1>, <9.3, 9.3, 2.6>, 1, 1)
  Plank(<-9.3, -9.3, -1>, <-6.0, 9.3, 2.4>, 0, 1.05)
  Plank(<6.0, -9.3, -1>, <9.3, 9.3, 2.4>, 0, 1.05)
}
intersection {
  union {
    object { Face rotate x * -90 translate <0, 9, 0> }
    object { Face scale <1, 1, -1> translate <0, 0, -9> }
  }
  box { <-9.5, -3, -11.5>, <9.4, 12, 9.4> }
  scale <1, 0.62, 0.90>
  translate 4.2 * y
}
