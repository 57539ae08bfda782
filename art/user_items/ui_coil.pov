// An electric coil: copper turns, a steel ball, and an arc that jumps to another place every frame.
#version 3.7;
#include "stage.inc"
Stage(22, 5.9)

#declare Frame = floor(clock * 45 + 0.5);
#declare R = seed(1000 + 37 * Frame);

cylinder { <0, -0.6, 0>, <0, 0.6, 0>, 7.6 Plain(<0.10, 0.11, 0.16>) }
torus { 7.1, 0.7 translate 0.6 * y Plain(<0.95, 0.72, 0.10>) }
cylinder { 0, <0, 10, 0>, 2.8 Plain(<0.85, 0.82, 0.76>) }
#for (I, 0, 4)
  torus { 3.2, 1.0 translate (1.7 + 1.9 * I) * y texture { pigment { rgb <0.92, 0.40, 0.12> } finish { ambient 0.25 diffuse 0.75 specular 0.8 roughness 0.03 metallic } } }
#end
sphere { <0, 12.2, 0>, 3.1 texture { pigment { rgb <0.62, 0.68, 0.80> } finish { ambient 0.2 diffuse 0.6 specular 1 roughness 0.02 reflection 0.25 } } }

// The arc: from the ball outwards and down to the base ring, bent at random on its way.
#macro Arc(Angle)
  #local Joints = 5;
  #local At = <2.6, 11.6, 0>;
  #for (I, 1, Joints)
    #local S = I / Joints;
    #local Next = <2.6 + 5.0 * S + 1.2 * (rand(R) - 0.5), 11.6 - 10.8 * S * S + 1.8 * (rand(R) - 0.5), 3.4 * (rand(R) - 0.5) * (1 - S)>;
    cylinder { At, Next, 0.52 rotate y * Angle }
    sphere { Next, 0.52 rotate y * Angle }
    #local At = Next;
  #end
#end
union {
  Arc(150 + 60 * rand(R) + 180 * mod(Frame, 2))
  Arc(200 + 160 * rand(R))
  pigment { rgb <0.62, 0.90, 1.0> }
  finish { ambient 1.3 diffuse 0 }
  no_shadow
}
