// A round basin; rings run out from the jet in its middle.
#version 3.7;
#include "stage.inc"
Stage(58, 1.4)

#declare Rounds = 4;
difference {
  cylinder { <0, -2, 0>, <0, 3.4, 0>, 8.9 }
  cylinder { <0, 1, 0>, <0, 6, 0>, 6.8 }
  Mottled(<0.72, 0.66, 0.56>, <0.95, 0.90, 0.80>, 5)
}
torus { 7.8, 1.1 translate 3.4 * y Mottled(<0.72, 0.66, 0.56>, <0.95, 0.90, 0.80>, 5) }
cylinder {
  <0, 1, 0>, <0, 2.2, 0>, 6.9
  texture {
    pigment {
      function { 0.5 + 0.5 * sin(2 * pi * (sqrt(x * x + z * z) / 3.3 - clock * Rounds)) }
      color_map { [0.2 rgb <0.02, 0.22, 0.62>] [0.7 rgb <0.10, 0.52, 0.95>] [1.0 rgb <0.75, 0.95, 1.0>] }
    }
    finish { ambient 0.35 diffuse 0.65 specular 0.6 roughness 0.03 }
  }
}
cylinder { <0, 1, 0>, <0, 4.6, 0>, 1.9 Mottled(<0.72, 0.66, 0.56>, <0.95, 0.90, 0.80>, 4) }
// Drops on eight paths that rise from the jet and fall back into the basin.
#for (I, 0, 15)
  #local Life = mod(clock * Rounds + I * 0.37, 1);
  sphere {
    <5.4 * Life * cos(radians(22.5 * I * 3)), 4.8 + 13 * Life * (0.82 - Life), 5.4 * Life * sin(radians(22.5 * I * 3))>, 0.95
    pigment { rgb <0.86, 0.97, 1.0> }
    finish { ambient 0.75 diffuse 0.3 }
    no_shadow
  }
#end
