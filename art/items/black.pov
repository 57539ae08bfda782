// The heavy item: a black banana, half peeled, its skin hanging down round the pale fruit.
#version 3.7;
#include "item.inc"

ItemStage(16, 24, 14)

#declare Skin = texture {
  pigment { rgb <0.032, 0.027, 0.040> }
  finish { ambient 0.3 diffuse 0.9 specular 0.9 roughness 0.035 reflection { 0.04, 0.36 } }
}

#declare Body = spline {
  cubic_spline
  -1.2, <0.8, 0, 0>,
  -1.0, <0.9, 0, 0>,
  -0.8, <1.1, 0, 0>,
  -0.3, <2.4, 0, 0>,
   0.3, <3.0, 0, 0>,
   1.0, <2.9, 0, 0>,
   1.2, <2.9, 0, 0>
}
#declare Fruit = spline {
  cubic_spline
  -1.2, <2.6, 0, 0>,
  -1.0, <2.6, 0, 0>,
   0.0, <2.65, 0, 0>,
   0.6, <2.2, 0, 0>,
   1.0, <1.1, 0, 0>,
   1.2, <0.9, 0, 0>
}

// A strip of skin from the fruit outwards and down.
#macro Strip(Angle, Reach, Drop)
  sphere_sweep {
    cubic_spline 7,
    <0.0, -2.5, 0>, 1.3
    <1.5, 0.2, 0>, 1.5
    <3.3, 2.4, 0>, 1.5
    <Reach - 0.9, 2.2, 0>, 1.4
    <Reach + 0.1, -0.6, 0>, 1.1
    <Reach + 0.5, -Drop, 0>, 0.6
    <Reach + 0.7, -Drop - 2, 0>, 0.4
    texture { Skin }
    rotate y * Angle
  }
#end

union {
  merge {
    BentBody(-16, 18, Body, 20)
    texture { Skin }
    rotate z * 8
    translate <0.5, -4.0, 0>
  }
  merge {
    BentBody(-14, 19, Fruit, 16)
    pigment { rgb <0.95, 0.86, 0.58> }
    finish { ambient 0.25 diffuse 0.75 specular 0.15 roughness 0.08 }
    translate <-0.3, 3.9, 0>
  }
  Strip(0, 5.5, 4.2)
  Strip(117, 5.2, 3.4)
  Strip(243, 5.7, 3.8)
  translate <0, 0.45, 0>
  rotate y * (Turn + 75)
}
