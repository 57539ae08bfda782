// A brazier: tongues of fire rise, thin and vanish, each with a whole number of rounds in a cycle.
#version 3.7;
#include "stage.inc"
Stage(20, 7.9)

#declare Fire = spline {
  linear_spline
  0.00, <1.00, 0.92, 0.45>,
  0.35, <1.00, 0.66, 0.06>,
  0.70, <1.00, 0.28, 0.02>,
  1.00, <0.72, 0.06, 0.02>
}
#declare R = seed(8);
#declare Tongues = 26;
#for (I, 0, Tongues - 1)
  #local Rounds = (mod(I, 3) = 0 ? 2 : 4);
  #local Life = mod(I / Tongues * 5 + clock * Rounds, 1);
  #local A = 360 * rand(R);
  #local Out = 4.6 * sqrt(rand(R));
  #local In = 1 - 0.85 * Life;
  #local Size = (1.4 + 1.7 * rand(R)) * (Life < 0.15 ? Life / 0.15 : 1 - 0.85 * (Life - 0.15) / 0.85);
  sphere {
    0, Size
    scale <1, 1.75, 1>
    translate <Out * cos(radians(A)) * In + 0.9 * sin(2 * pi * (Life + I / 7)), 6.4 + 10.6 * Life, Out * sin(radians(A)) * In>
    pigment { rgb Fire(Life) }
    finish { ambient 1.0 diffuse 0 }
    no_shadow
  }
#end
difference {
  sphere { 0, 8.6 scale <1, 0.72, 1> translate 6.4 * y }
  plane { -y, -6.8 }
  sphere { 0, 7.3 scale <1, 0.6, 1> translate 7.0 * y }
  texture { pigment { rgb <0.10, 0.095, 0.115> } finish { ambient 0.3 diffuse 0.8 specular 0.7 roughness 0.05 } }
}
torus { 7.9, 0.85 translate 6.7 * y texture { pigment { rgb <0.86, 0.52, 0.12> } finish { ambient 0.25 diffuse 0.8 specular 0.7 roughness 0.04 } } }
cylinder { <0, 6.0, 0>, <0, 6.4, 0>, 7.2 pigment { rgb <1.0, 0.42, 0.03> } finish { ambient 0.9 diffuse 0 } }
cone { <0, 0.2, 0>, 5.2, <0, 2.4, 0>, 2.6 texture { pigment { rgb <0.20, 0.19, 0.22> } finish { ambient 0.25 diffuse 0.8 specular 0.5 roughness 0.05 } } }
