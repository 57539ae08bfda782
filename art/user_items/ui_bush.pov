// A round thorn bush with red berries: can be blown up.
#version 3.7;
#include "stage.inc"
Stage(52, 5.2)

#declare R = seed(15);
#for (I, 0, 150)
  #local H = rand(R);
  #local A = 360 * rand(R);
  #local Rad = 7.6 * sqrt(1 - H * H) ;
  #local G = 0.55 + 0.75 * rand(R);
  sphere {
    0, 1.55
    scale <1.5, 0.55, 0.9>
    rotate <60 * (rand(R) - 0.5), 0, 60 * (rand(R) - 0.5)>
    rotate y * 360 * rand(R)
    translate <Rad * cos(radians(A)), 9.0 * H + 0.4, Rad * sin(radians(A))>
    Plain(<0.055, 0.30, 0.035> * G)
  }
#end
sphere { 0, 7 scale <1, 1.1, 1> Plain(<0.01, 0.06, 0.01>) }
#for (I, 0, 11)
  #local A = 30 * I + 20 * rand(R);
  #local H = 0.25 + 0.65 * rand(R);
  sphere { <8.4 * sqrt(1 - H * H) * cos(radians(A)), 10.0 * H + 0.6, 8.4 * sqrt(1 - H * H) * sin(radians(A))>, 1.25 Plain(<0.95, 0.05, 0.04>) }
#end
