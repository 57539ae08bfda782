// High above the clouds at dawn: violet air, and rosy banks far below.
#version 3.7;
#include "field.inc"

#declare Bank = function { pattern { bozo turbulence 0.65 octaves 6 omega 0.55 scale <150, 105, 120> translate <4, 9, 3> } }

plane {
  z, 0
  pigment {
    function { min(0.999, max(0, Bank(x, y, 0))) }
    color_map {
      [0.00 rgb <0.115, 0.090, 0.215>]
      [0.42 rgb <0.145, 0.108, 0.235>]
      [0.56 rgb <0.225, 0.150, 0.255>]
      [0.72 rgb <0.380, 0.230, 0.265>]
      [1.00 rgb <0.520, 0.330, 0.290>]
    }
  }
  finish { ambient 1 diffuse 0 }
}
// The sun side of each bank is brighter, the other side violet.
plane {
  z, 0.01
  pigment {
    function { min(0.999, max(0, 0.5 + 2.2 * (Bank(x, y, 0) - Bank(x - 7, y - 9, 0)) * max(0, min(1, (Bank(x, y, 0) - 0.42) * 4)))) }
    color_map { [0.0 rgbt <0.16, 0.10, 0.24, 0.35>] [0.5 rgbt <0.3, 0.4, 0.6, 1>] [1.0 rgbt <0.80, 0.55, 0.42, 0.45>] }
  }
  finish { ambient 1 diffuse 0 }
}
