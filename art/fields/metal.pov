// Deck plates of brushed steel with sunk screws.
#version 3.7;
#include "field.inc"

#declare R = seed(404);

#macro Steel(Tone, Along)
  texture {
    pigment {
      granite scale (Along ? <260, 5, 40> : <5, 260, 40>) translate 700 * rand(R)
      color_map { [0.2 rgb <0.170, 0.186, 0.206> * Tone] [0.8 rgb <0.240, 0.258, 0.280> * Tone] }
    }
    normal { granite 0.06 scale (Along ? <200, 4, 40> : <4, 200, 40>) translate 300 * rand(R) }
    finish { ambient 0.14 diffuse 0.86 specular 0.12 roughness 0.15 }
  }
#end

#macro Screw(At)
  difference {
    sphere { 0, 2.6 scale <1, 1, 0.5> }
    box { <-3, -0.45, 0.6>, <3, 0.45, 3> rotate z * 180 * rand(R) }
    translate At
    pigment { rgb <0.24, 0.25, 0.27> }
    finish { ambient 0.12 diffuse 0.85 specular 0.3 roughness 0.08 }
  }
#end

#macro Plate(X0, Y0, X1, Y1)
  #local Tone = 0.95 + 0.20 * (rand(R) - 0.5);
  #local Along = (rand(R) < 0.5 ? 1 : 0);
  object {
    Round_Box_Union(<X0 + 0.7, Y0 + 0.7, -6>, <X1 - 0.7, Y1 - 0.7, 2>, 1.6)
    Steel(Tone, Along)
  }
  Screw(<X0 + 7, Y0 + 7, 1.9>)
  Screw(<X1 - 7, Y0 + 7, 1.9>)
  Screw(<X0 + 7, Y1 - 7, 1.9>)
  Screw(<X1 - 7, Y1 - 7, 1.9>)
#end

// Rows of plates, each row moved against the one above.
#for (J, 0, 5)
  #local X = -10 - 62 * mod(J * 2, 3);
  #while (X < 640)
    #local W = 124 + 31 * floor(3 * rand(R)) - 31;
    Plate(X, 10 + J * 92 - 92 + 46, X + W, 10 + J * 92 + 46)
    #local X = X + W;
  #end
#end
plane { z, 0 pigment { rgb <0.03, 0.032, 0.036> } }
