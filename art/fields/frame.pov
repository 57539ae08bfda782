// The rim of a closed field, 10 pixels wide: a snake's outermost cells end exactly at its inside.
// MATERIAL: 0 brick, 1 stone, 2 timber, 3 snow, 4 steel. Rendered with nothing behind it.
#version 3.7;
#include "field.inc"

#declare R = seed(9 + MATERIAL);
#declare Rim = 10;

#macro Coat()
  #local Tone = 0.86 + 0.28 * rand(R);
  texture {
    #switch (MATERIAL)
      #case (0)
        pigment { granite scale 9 translate 400 * rand(R) color_map { [0.2 rgb <0.36, 0.075, 0.035> * Tone] [0.8 rgb <0.50, 0.125, 0.055> * Tone] } }
        normal { granite 0.25 scale 7 translate 100 * rand(R) }
        #break
      #case (1)
        pigment { granite scale 20 translate 400 * rand(R) color_map { [0.2 rgb <0.20, 0.20, 0.21> * Tone] [0.8 rgb <0.34, 0.34, 0.33> * Tone] } }
        normal { granite 0.35 scale 10 translate 100 * rand(R) }
        #break
      #case (2)
        pigment { granite scale <90, 5, 9> translate 400 * rand(R) color_map { [0.2 rgb <0.17, 0.080, 0.026> * Tone] [0.8 rgb <0.34, 0.175, 0.065> * Tone] } }
        normal { granite 0.25 scale <70, 4, 5> translate 100 * rand(R) }
        #break
      #case (3)
        pigment { rgb <0.84, 0.90, 0.95> * (0.5 + 0.5 * Tone) }
        normal { bumps 0.5 scale 4 translate 100 * rand(R) }
        #break
      #case (4)
        pigment { granite scale <120, 5, 9> translate 400 * rand(R) color_map { [0.2 rgb <0.10, 0.11, 0.13>] [0.8 rgb <0.19, 0.20, 0.23>] } }
        #break
    #end
    finish { ambient 0.12 diffuse 0.9 specular (MATERIAL = 4 ? 0.3 : 0.04) roughness 0.08 }
  }
#end

// Length of one piece of the rim along each side; the last one takes what is left.
#declare Piece = array[5] { 20, 40, 80, 26, 160 };

#macro Bar(From, To)
  object {
    Round_Box_Union(<From + 0.35, 0.2, -14>, <To - 0.35, Rim - 0.2, 9>, (MATERIAL = 3 ? 4.6 : 2.2))
    Coat()
  }
  #if (MATERIAL = 2 | MATERIAL = 4)
    sphere { <From + 6, Rim / 2, 9>, 1.5 scale <1, 1, 1> pigment { rgb (MATERIAL = 2 ? 0.05 : 0.3) } finish { ambient 0.1 diffuse 0.8 specular 0.4 } }
    sphere { <To - 6, Rim / 2, 9>, 1.5 pigment { rgb (MATERIAL = 2 ? 0.05 : 0.3) } finish { ambient 0.1 diffuse 0.8 specular 0.4 } }
  #end
#end

// A side along x from 0 to Length, its inside at y = Rim.
#macro Side(Length)
  union {
    #local A = Rim;
    #while (A < Length - Rim)
      #local B = (A + 1.5 * Piece[MATERIAL] > Length - Rim ? Length - Rim : A + Piece[MATERIAL]);
      Bar(A, B)
      #local A = B;
    #end
  }
#end

#macro Corner(At)
  object { Round_Box_Union(<0.2, 0.2, -14>, <Rim - 0.2, Rim - 0.2, 11>, 3) Coat() translate At }
#end

object { Side(640) }
object { Side(640) scale <1, -1, 1> translate 480 * y }
object { Side(480) matrix <0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0> }
object { Side(480) matrix <0, 1, 0, -1, 0, 0, 0, 0, 1, 640, 0, 0> }
Corner(<0, 0, 0>)
Corner(<630, 0, 0>)
Corner(<0, 470, 0>)
Corner(<630, 470, 0>)

// Mortar under bricks and stones, so that joints are closed.
#declare Under = texture { pigment { rgb (MATERIAL = 3 ? <0.6, 0.7, 0.8> : <0.05, 0.045, 0.04>) } }
difference {
  box { <0, 0, -5>, <640, 480, 6> }
  box { <Rim - 0.6, Rim - 0.6, -6>, <640.6 - Rim, 480.6 - Rim, 7> }
  texture { Under }
}
