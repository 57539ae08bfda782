// The deck of a ship: weathered planks with caulked seams and wooden pegs.
#version 3.7;
#include "field.inc"

#declare R = seed(71);
#declare Broad = 24;

#macro Plank(From, To, Row)
  #local Tone = 0.90 + 0.20 * rand(R);
  object {
    Round_Box_Union(<From + 0.5, 0.6, -4>, <To - 0.5, Broad - 0.6, 1.6>, 0.8)
    texture {
      pigment {
        granite turbulence 0.2 scale <95, 4.5, 9> translate 500 * <rand(R), rand(R), rand(R)>
        color_map {
          [0.15 rgb <0.200, 0.150, 0.098> * Tone]
          [0.50 rgb <0.252, 0.195, 0.132> * Tone]
          [0.85 rgb <0.305, 0.243, 0.172> * Tone]
        }
      }
      normal { granite 0.12 scale <60, 3, 6> translate 90 * rand(R) }
      finish { ambient 0.14 diffuse 0.88 }
    }
    translate Row * Broad * y
  }
  #for (E, 0, 1)
    #for (P, 0, 1)
      cylinder {
        <(E ? To - 7 : From + 7), Row * Broad + 7 + 10 * P, 0>, <(E ? To - 7 : From + 7), Row * Broad + 7 + 10 * P, 1.75>, 1.5
        pigment { rgb <0.155, 0.130, 0.105> } finish { ambient 0.12 diffuse 0.85 }
      }
    #end
  #end
#end

#for (Row, 0, 19)
  #local At = -160 * rand(R) - 10;
  #while (At < 640)
    #local Next = At + 130 + 90 * rand(R);
    Plank(At, Next, Row)
    #local At = Next;
  #end
#end
plane { z, 0.2 pigment { rgb <0.045, 0.038, 0.032> } }
