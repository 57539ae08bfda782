// A white column on a square foot, from above: withstands TNT.
#version 3.7;
#include "stage.inc"
Stage(66, 3.6)

#macro White(Tone)
  texture {
    pigment { marble turbulence 0.9 scale 6 color_map { [0.0 rgb <0.93, 0.90, 0.82> * Tone] [0.8 rgb <0.86, 0.82, 0.74> * Tone] [1.0 rgb <0.60, 0.56, 0.52> * Tone] } }
    finish { ambient 0.22 diffuse 0.8 specular 0.25 roughness 0.05 }
  }
#end
object { Round_Box_Union(<-9.3, -3, -9.3>, <9.3, 0.2, 9.3>, 0.7) White(0.80) }
difference {
  cylinder { 0, <0, 8, 0>, 7.6 }
  #for (I, 0, 15)
    cylinder { <0, -1, 0>, <0, 9, 0>, 0.95 translate 7.9 * x rotate 22.5 * I * y }
  #end
  White(0.96)
}
torus { 6.9, 1.0 translate 8 * y White(1.06) }
cylinder { <0, 7.4, 0>, <0, 8.5, 0>, 6.6 White(0.92) }
cylinder { <0, 8, 0>, <0, 8.9, 0>, 4.0 White(1.08) }
