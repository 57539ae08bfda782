// A clipped box hedge, one rounded cube of leaves: can be blown up. Cubes side by side make a hedge.
#version 3.7;
#include "stage.inc"
Stage(90, 0)

#declare R = seed(27);
object { Round_Box_Union(<-9.7, -4, -9.7>, <9.7, 3.6, 9.7>, 2.6) Plain(<0.005, 0.16, 0.006>) }
// Leaves lie denser and lighter towards the upper left, where the sun stands.
#for (I, 0, 520)
  #local X = 19.2 * (rand(R) - 0.5);
  #local Z = 19.2 * (rand(R) - 0.5);
  #local Edge = max(abs(X), abs(Z));
  #local Lit = 0.62 + 0.30 * rand(R) + 0.020 * (Z - X) + (Edge > 7.6 ? -0.26 : 0);
  sphere {
    0, 1.15
    scale <1.5, 0.42, 0.85>
    rotate <40 * (rand(R) - 0.5), 360 * rand(R), 40 * (rand(R) - 0.5)>
    translate <X, 4.0 - 0.05 * max(0, Edge - 6) * max(0, Edge - 6) + 0.5 * rand(R), Z>
    Plain((rand(R) < 0.12 ? <0.20, 0.86, 0.02> : <0.018, 0.54, 0.008>) * Lit)
  }
#end
