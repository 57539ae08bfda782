// The plain field: worn flagstones of many sizes, moss in some joints.
#version 3.7;
#include "field.inc"

#declare R = seed(1207);

#macro Stone(X0, Y0, X1, Y1)
  #local Tone = 0.92 + 0.22 * (rand(R) - 0.5);
  #local Warm = rand(R) - 0.5;
  #local Base = <0.190 + 0.026 * Warm, 0.190, 0.158 - 0.020 * Warm> * Tone;
  #local Tilt = <rand(R) - 0.5, rand(R) - 0.5, 0> * 0.5;
  #local Mid = <(X0 + X1) / 2, (Y0 + Y1) / 2, 0>;
  object {
    Round_Box_Union(<X0 + 0.8, Y0 + 0.8, -8>, <X1 - 0.8, Y1 - 0.8, 3 + rand(R)>, 2.6)
    texture {
      pigment {
        granite scale 46 turbulence 0.3
        color_map { [0.1 rgb Base * 0.80] [0.5 rgb Base] [0.9 rgb Base * 1.20] }
        translate <rand(R), rand(R), rand(R)> * 500
      }
      normal {
        average normal_map {
          [1 granite 0.35 scale 26 translate rand(R) * 300]
          [1 bumps 0.55 scale 9 translate rand(R) * 300]
          [1 wrinkles 0.5 scale 40 translate rand(R) * 300]
        }
      }
      finish { ambient 0.10 diffuse 0.95 }
    }
    translate -Mid
    rotate Tilt
    translate Mid
  }
#end

// Splits a rectangle until its parts are of paving size, never into slivers.
#macro Pave(X0, Y0, X1, Y1)
  #local W = X1 - X0;
  #local H = Y1 - Y0;
  #local Small = ((W <= 112) & (H <= 84) & ((W * H < 4200) | (rand(R) < 0.45)));
  #if (Small | ((W < 64) & (H < 64)))
    Stone(X0, Y0, X1, Y1)
  #else
    #local Cut = 0.38 + 0.24 * rand(R);
    #if (W * 0.85 > H)
      #local X = X0 + W * Cut;
      Pave(X0, Y0, X, Y1)
      Pave(X, Y0, X1, Y1)
    #else
      #local Y = Y0 + H * Cut;
      Pave(X0, Y0, X1, Y)
      Pave(X0, Y, X1, Y1)
    #end
  #end
#end

Pave(-30, -25, 672, 506)

plane {
  z, 0.9
  texture {
    pigment {
      function { Cloud(x, y, z) }
      color_map {
        [0.35 rgb <0.050, 0.046, 0.034>]
        [0.50 rgb <0.060, 0.085, 0.022>]
        [0.70 rgb <0.095, 0.150, 0.030>]
      }
    }
    normal { bumps 0.8 scale 2 }
  }
}
