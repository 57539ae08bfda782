// A portcullis of black iron in a stone sill: withstands TNT.
#version 3.7;
#include "stage.inc"
Stage(90, 0)

#macro Iron()
  texture { pigment { rgb <0.33, 0.37, 0.44> } finish { ambient 0.22 diffuse 0.75 specular 0.8 roughness 0.04 } }
#end
object { Round_Box_Union(<-9.7, -4, -9.7>, <9.7, -1, 9.7>, 1.2) Mottled(<0.10, 0.10, 0.13>, <0.16, 0.16, 0.20>, 4) }
#for (I, 0, 2)
  object { Round_Box_Union(<-8.0 + 6.4 * I, -1, -9.6>, <-4.8 + 6.4 * I, 1.4, 9.6>, 0.8) Iron() }
#end
#for (J, 0, 2)
  object { Round_Box_Union(<-9.6, -1, -7.8 + 6.4 * J>, <9.6, 0.8, -5.0 + 6.4 * J>, 0.7) Iron() }
  #for (I, 0, 2)
    sphere { <-6.4 + 6.4 * I, 1.4, -6.4 + 6.4 * J>, 1.25 texture { pigment { rgb <0.95, 0.62, 0.16> } finish { ambient 0.25 diffuse 0.8 specular 0.8 roughness 0.04 } } }
  #end
#end
