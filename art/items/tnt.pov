// Seven sticks in a bundle, a paper label round them, a fuse that burns.
#version 3.7;
#include "item.inc"

ItemStage(16, 24, 20)

#declare StickRadius = 2.05;
#declare Ring = 4.25;

#macro Stick(At)
  union {
    cylinder { <0, -8.2, 0>, <0, 5.2, 0>, StickRadius }
    torus { StickRadius - 0.4, 0.4 translate 5.2 * y }
    cylinder { <0, 5.2, 0>, <0, 5.6, 0>, StickRadius - 0.4 }
    pigment { rgb <0.80, 0.035, 0.025> }
    finish { ambient 0.22 diffuse 0.78 specular 0.35 roughness 0.06 }
    translate At
  }
#end

// The word three times round the label, every letter upright on its own bit of the curve.
#declare LabelRadius = Ring + StickRadius + 0.15;
// Letters are drawn twice, a little apart, to be bold enough for this size.
#macro Letter(Glyph, Angle)
  #for (Side, -1, 1, 2)
    text {
      ttf "/usr/share/fonts/truetype/liberation2/LiberationSans-Bold.ttf", Glyph, 2, 0
      translate <(Glyph = "N" ? -0.36 : -0.305), 0, 0>
      scale <4.9, 6.4, 1>
      translate <0.22 * Side, -3.75, -LabelRadius - 0.8>
      rotate y * -Angle
    }
  #end
#end
#declare Words = union {
  #for (I, 0, 2)
    Letter("T", 120 * I - 34)
    Letter("N", 120 * I)
    Letter("T", 120 * I + 34)
  #end
}

union {
  Stick(0)
  #for (I, 0, 5)
    Stick(<Ring * cos(radians(60 * I)), 0, Ring * sin(radians(60 * I))>)
  #end
  difference {
    cylinder { <0, -4.9, 0>, <0, 2.0, 0>, LabelRadius }
    cylinder { <0, -5, 0>, <0, 3, 0>, Ring + StickRadius - 0.3 }
    pigment {
      object {
        Words
        color rgb <0.95, 0.88, 0.70>
        color rgb <0.04, 0.03, 0.03>
      }
    }
    finish { ambient 0.28 diffuse 0.8 }
  }
  union {
    sphere_sweep { cubic_spline 5, <0, 3, 0>, 0.5, <0, 5.4, 0>, 0.5, <0.4, 7.4, 0>, 0.5, <1.6, 8.6, 0>, 0.5, <3, 9, 0>, 0.5 }
    pigment { rgb <0.45, 0.40, 0.30> }
    finish { ambient 0.3 diffuse 0.8 }
  }
  #local Flare = 1.35 + 0.35 * sin(clock * 2 * pi * 9) + 0.2 * sin(clock * 2 * pi * 5);
  sphere { <1.7, 8.7, 0>, Flare pigment { rgb <1.0, 0.62, 0.06> } finish { ambient 1.1 diffuse 0 } no_shadow }
  sphere { <1.7, 8.8, 0>, Flare * 0.5 pigment { rgb <1.0, 0.96, 0.70> } finish { ambient 1.3 diffuse 0 } translate <0, 0.2, 0> no_shadow }
  rotate y * Turn
}
