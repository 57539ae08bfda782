// The page of the best scores: a golden cup on a pedestal with the boa around it, and a tablet for
// the table.
#declare Haze = 400;
#include "court.inc"

camera { location <0, 4, -13> direction z right 4 / 3 * x up y angle 54 }

// The face of the tablet shows at x 298 to 618, y 205 to 432.
Tablet(-0.38, 5.22, 0.64, 4.61)
object { Fern(10, 1.5, 42) translate <6.1, -0.3, -2.8> }
object { Fern(10, 1.4, 43) translate <-5.6, -0.2, -3.2> }

#declare Cx = -3.0;
#declare Cz = -1.4;
#declare Gold = texture {
  pigment { rgb <1.0, 0.66, 0.12> }
  finish { ambient 0.02 diffuse 0.35 specular 0.9 roughness 0.01 metallic reflection { 0.5
    metallic } }
}

// Pedestal and cup.
union {
  superellipsoid { <0.1, 0.1> scale <1.25, 0.2, 1.25> translate 0.2 * y }
  superellipsoid { <0.1, 0.1> scale <0.95, 1.2, 0.95> translate 1.1 * y }
  superellipsoid { <0.1, 0.1> scale <1.2, 0.16, 1.2> translate 2.3 * y }
  Stone(Sand_stone, 9)
  translate <Cx, 0, Cz>
}
union {
  lathe {
    cubic_spline 14,
    <0, -0.1>, <0.62, 0>, <0.60, 0.12>, <0.30, 0.22>, <0.15, 0.42>, <0.13, 0.68>, <0.26, 0.86>,
      <0.62, 1.06>, <0.86, 1.50>,
    <0.92, 2.05>, <1.00, 2.15>, <0.93, 2.20>, <0.80, 1.60>, <0.2, 1.2>
    sturm
  }
  #for (S, -1, 1, 2)
    sphere_sweep {
      cubic_spline 7,
      <S * 0.5, 2.1, 0>, 0.08, <S * 0.88, 1.92, 0>, 0.08, <S * 1.28, 2.0, 0>, 0.08, <S * 1.42,
        1.7, 0>, 0.08
      <S * 1.2, 1.36, 0>, 0.08, <S * 0.76, 1.26, 0>, 0.08, <S * 0.4, 1.3, 0>, 0.08
    }
  #end
  texture { Gold }
  rotate 14 * y
  scale 1.05
  translate <Cx, 2.46, Cz>
}
object { Bunch(5, 1.5, 51) rotate 160 * x rotate <-20, 40, 0> translate <Cx + 0.1, 4.2, Cz - 0.1> }
object { Bunch(6, 1.25, 52) rotate 30 * y translate <-0.95, 1.95, -3.9> }
object { Banana(1.5) rotate 95 * z rotate 20 * y translate <-2.4, 0.7, -4.6> }

// The boa winds one and a half times around the pedestal and up to the cup.
#declare Course = spline {
  natural_spline
  0.00, <-5.9, 0.10, -4.0>
  0.05, <-5.2, 0.16, -4.2>
  0.10, <-4.4, 0.24, -4.0>
  0.15, <-3.6, 0.32, -3.6>
  0.20, <-2.6, 0.40, -3.45>
  #for (I, 0, 19)
    #local Deg = -60 + 30 * I;
    0.245 + 0.03 * I, <Cx + (1.66 + 0.1 * cos(radians(Deg * 4))) * cos(radians(Deg)),
      0.5 + 0.098 * I, Cz + 1.72 * sin(radians(Deg))>
  #end
  0.85, <Cx - 1.95, 3.0, Cz - 0.75>
  0.885, <Cx - 1.85, 3.7, Cz - 1.15>
  0.92, <Cx - 1.5, 4.2, Cz - 1.5>
  0.96, <Cx - 0.95, 4.3, Cz - 1.85>
  1.00, <Cx - 0.4, 4.12, Cz - 2.2>
}
object { Boa(Course, 380, y, 0.40, 0.83, 1, -0.6 * z) }
