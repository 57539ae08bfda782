// A carved head of jade on a stone foot, with golden eyes: withstands everything.
#version 3.7;
#include "stage.inc"
Stage(24, 8.6)

#declare Jade = texture {
  pigment { granite scale 6 color_map { [0.2 rgb <0.03, 0.36, 0.22>] [0.8 rgb <0.10, 0.58, 0.36>] } }
  finish { ambient 0.2 diffuse 0.85 specular 0.5 roughness 0.05 }
}
#declare Hollow = texture { pigment { rgb <0.006, 0.05, 0.035> } finish { ambient 0.2 diffuse 0.6 } }

union {
  object { Round_Box_Union(<-7.6, 0, -4>, <7.6, 15.6, 5>, 2.2) }
  object { Round_Box_Union(<-8.6, 10.4, -5.6>, <8.6, 13.6, 3>, 1.3) }
  object { Round_Box_Union(<-1.7, 5.6, -7.0>, <1.7, 12.6, 0>, 1.1) }
  object { Round_Box_Union(<-9.3, 4.6, -2>, <9.3, 10.4, 2>, 1.2) }
  #for (I, -1, 1)
    object { Round_Box_Union(<-2.1, 13.6, -2.5>, <2.1, 18.0 - 1.2 * abs(I), 2.5>, 1.2) translate 4.9 * I * x }
  #end
  texture { Jade }
}
#for (I, -1, 1, 2)
  object { Round_Box_Union(<-2.1, 6.9, -4.4>, <2.1, 10.6, -3>, 0.6) translate 4.5 * I * x texture { Hollow } }
  sphere { <4.3 * I, 8.7, -4.6>, 1.35 texture { pigment { rgb <1.0, 0.72, 0.06> } finish { ambient 0.45 diffuse 0.7 specular 0.6 } } }
#end
object { Round_Box_Union(<-5.2, 1.6, -4.6>, <5.2, 4.2, -3>, 0.6) texture { Hollow } }
#for (I, -1, 1)
  box { <-1.0, 1.4, -4.9>, <1.0, 4.3, -4> translate 2.9 * I * x Plain(<0.95, 0.92, 0.80>) }
#end
object { Round_Box_Union(<-9.2, -2.4, -7.4>, <9.2, 0.6, 7>, 0.8) Mottled(<0.62, 0.52, 0.34>, <0.85, 0.75, 0.52>, 5) }
