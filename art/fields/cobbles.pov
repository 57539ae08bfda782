// A yard of round river cobbles, cool and grey, bedded in sand.
#version 3.7;
#include "field.inc"

#declare R = seed(61);
#declare Step = 25;

#macro Cobble(At)
  #local Tone = 0.86 + 0.30 * rand(R);
  #local Warm = rand(R) - 0.5;
  #local Base = <0.178 + 0.030 * Warm, 0.184, 0.196 - 0.030 * Warm> * Tone;
  superellipsoid {
    <0.80, 0.80>
    scale <Step * (0.49 + 0.08 * rand(R)), Step * (0.42 + 0.07 * rand(R)), 6.5>
    rotate z * (30 * rand(R) - 15 + 90 * floor(2 * rand(R)))
    texture {
      pigment {
        granite scale 18
        color_map { [0.15 rgb Base * 0.82] [0.5 rgb Base] [0.85 rgb Base * 1.2] }
        translate 300 * <rand(R), rand(R), rand(R)>
      }
      normal { granite 0.18 scale 9 translate 300 * rand(R) }
      finish { ambient 0.12 diffuse 0.95 }
    }
    translate At
  }
#end

#for (J, -1, 23)
  #for (I, -1, 27)
    Cobble(<(I + 0.5 * mod(J + 2, 2)) * Step + 3 * (rand(R) - 0.5), J * Step * 0.87 + 3 * (rand(R) - 0.5), 1.5 * rand(R)>)
  #end
#end

plane {
  z, 0.8
  texture {
    pigment { granite scale 3 color_map { [0.2 rgb <0.060, 0.058, 0.050>] [0.8 rgb <0.105, 0.100, 0.085>] } }
    normal { bumps 0.6 scale 1.5 }
    finish { ambient 0.1 diffuse 0.8 }
  }
}
