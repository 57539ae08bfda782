// A cherry tree in blossom, its trunk just seen: withstands TNT.
#version 3.7;
#include "stage.inc"
Stage(58, 6.6)

#declare R = seed(33);
cylinder { <0, -5, 0>, <0, 4, 0>, 2.3 Plain(<0.22, 0.10, 0.035>) }
sphere { <0, 7.4, 0>, 7.4 Plain(<0.40, 0.10, 0.16>) }
#for (I, 0, 330)
  #local H = 1.6 * rand(R) - 0.6;
  #local A = 360 * rand(R);
  #local W = sqrt(max(0, 1 - H * H));
  #local N = <W * cos(radians(A)), H, W * sin(radians(A))>;
  #local Lump = 1 + 0.10 * sin(radians(A * 5)) * W;
  #local Lit = 0.62 + 0.30 * rand(R) + 0.34 * max(0, vdot(N, vnormalize(<-0.5, 0.8, -0.3>)));
  sphere {
    0, 1.35 scale <1.3, 0.6, 0.9>
    rotate <60 * (rand(R) - 0.5), 360 * rand(R), 60 * (rand(R) - 0.5)>
    translate N * 8.1 * Lump + <0, 7.4, 0>
    Plain((mod(I, 9) = 0 ? <0.30, 0.42, 0.08> : <1.0, 0.46, 0.60>) * Lit)
  }
#end
