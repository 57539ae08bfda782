// A studded door with a golden padlock: no key opens it, TNT does.
#version 3.7;
#include "stage.inc"
Stage(90, 0)

#declare R = seed(6);
#macro Wood(Tone)
  texture { pigment { granite scale <1.4, 9, 8> translate 60 * rand(R) color_map { [0.2 rgb <0.30, 0.10, 0.05> * Tone] [0.8 rgb <0.52, 0.20, 0.09> * Tone] } } finish { ambient 0.2 diffuse 0.85 } }
#end
#macro Metal(Colour)
  texture { pigment { rgb Colour } finish { ambient 0.28 diffuse 0.7 specular 0.7 roughness 0.05 } }
#end
#for (I, 0, 3)
  object { Round_Box_Union(<-9.2 + 4.6 * I, -2, -9.6>, <-4.7 + 4.6 * I, 2, 9.6>, 0.5) Wood(0.85 + 0.3 * rand(R)) }
#end
#for (J, 0, 1)
  object { Round_Box_Union(<-9.6, 0, -1.5 + 12 * J - 6.2>, <9.6, 2.9, 1.5 + 12 * J - 6.2>, 0.5) Metal(<0.30, 0.32, 0.37>) }
  #for (I, 0, 3)
    sphere { <-7.5 + 5 * I, 3.0, 12 * J - 6.2>, 0.85 Metal(<0.62, 0.65, 0.72>) }
  #end
#end
// The padlock.
difference {
  torus { 3.1, 0.95 translate <0, 5.4, 2.6> }
  plane { z, 1.2 }
  Metal(<0.80, 0.82, 0.88>)
}
object { Round_Box_Union(<-5.0, 2, -6.2>, <5.0, 6.6, 2.0>, 1.2) Metal(<1.0, 0.70, 0.08>) }
cylinder { <0, 6, -1.2>, <0, 6.8, -1.2>, 1.35 Plain(<0.10, 0.05, 0.01>) }
box { <-0.62, 6, -4.2>, <0.62, 6.8, -1.2> Plain(<0.10, 0.05, 0.01>) }
