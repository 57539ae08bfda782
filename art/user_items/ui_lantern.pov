// A street lamp from above, its light breathing, a moth around it: can be blown up.
#version 3.7;
#include "stage.inc"
Stage(34, 6.8)

#declare Glow = 0.78 + 0.16 * sin(2 * pi * clock) + 0.06 * sin(2 * pi * (3 * clock + 0.3));
#declare Iron = texture { pigment { rgb <0.055, 0.075, 0.085> } finish { ambient 0.3 diffuse 0.8 specular 0.7 roughness 0.05 } };
cylinder { <0, -4, 0>, <0, 2.4, 0>, 1.7 texture { Iron } }
torus { 2.6, 0.9 translate -2.6 * y texture { Iron } }
cone { <0, 2.0, 0>, 3.4, <0, 11.4, 0>, 5.6 pigment { rgb <1.0, 0.58, 0.06> * Glow + <0.1, 0.05, 0.0> } finish { ambient 0.95 diffuse 0.1 } no_shadow }
sphere { <0, 6.6, 0>, 3.6 + 1.6 * Glow scale <1, 1, 1> pigment { rgb <1.0, 0.97, 0.72> * (0.6 + 0.45 * Glow) } finish { ambient 1 diffuse 0 } no_shadow }
#for (I, 0, 5)
  cylinder { <3.6, 2.0, 0>, <5.8, 11.4, 0>, 0.55 rotate y * (60 * I + 30) texture { Iron } }
#end
cylinder { <0, 1.2, 0>, <0, 2.2, 0>, 4.0 texture { Iron } }
cone { <0, 11.2, 0>, 7.4, <0, 15.2, 0>, 1.6 texture { Iron } }
torus { 6.8, 0.6 translate 11.3 * y texture { pigment { rgb <0.85, 0.60, 0.15> } finish { ambient 0.25 diffuse 0.8 specular 0.7 } } }
sphere { <0, 15.8, 0>, 1.5 texture { pigment { rgb <0.85, 0.60, 0.15> } finish { ambient 0.25 diffuse 0.8 specular 0.7 } } }
union {
  sphere { 0, 1.15 scale <1, 0.6, 0.6> }
  sphere { 0, 1.0 scale <0.5, 1.0 + 0.7 * sin(2 * pi * 9 * clock), 0.5> translate 0.5 * y }
  translate <8.2, 8.5 + 1.5 * sin(4 * pi * clock), 0>
  rotate y * 360 * clock
  pigment { rgb <0.30, 0.14, 0.04> }
  finish { ambient 0.5 diffuse 0.5 }
}
