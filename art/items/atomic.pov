// A golden medal with the trefoil. Its axis goes once round a cone and the trefoil meanwhile moves
// on by a third of a turn, so it never shows its edge alone.
#version 3.7;
#include "item.inc"

ItemStage(22, 21, 0)

#declare Blade = intersection {
  cylinder { <0, 0, -1.9>, <0, 0, -1.2>, 6.7 }
  cylinder { <0, 0, -3>, <0, 0, 0>, 2.6 inverse }
  plane { x, 0 rotate z * -31 }
  plane { -x, 0 rotate z * 31 }
  plane { -y, 0 }
}

#declare Medal = union {
  difference {
    union {
      cylinder { <0, 0, -1.5>, <0, 0, 1.5>, 9.0 }
      torus { 8.5, 1.5 rotate x * 90 }
    }
    cylinder { <0, 0, -4>, <0, 0, -1.25>, 7.4 }
    cylinder { <0, 0, 4>, <0, 0, 1.25>, 7.4 }
    pigment { rgb <1.0, 0.62, 0.05> }
    finish { ambient 0.34 diffuse 0.55 specular 0.8 roughness 0.03 metallic reflection { 0.30 metallic } }
  }
  union {
    #for (I, 0, 2) object { Blade rotate z * 120 * I } #end
    cylinder { <0, 0, -1.9>, <0, 0, -1.2>, 1.7 }
    pigment { rgb <0.022, 0.020, 0.024> }
    finish { ambient 0.3 diffuse 0.6 }
    rotate z * 60
  }
}

object {
  Medal
  rotate z * clock * 120
  scale 0.925
  rotate y * 27
  rotate z * -clock * 360
}
