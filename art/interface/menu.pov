// The main page: a boa around a column in a ruined court at dusk.
#include "court.inc"

camera { location <0.6, 2.7, -13> look_at <0.3, 3.27, 0> right 4 / 3 * x angle 54 }

object { Column(1.1, 7.6, 1, 1) translate <-4.1, 0, 0.6> }
object { Fern(9, 1.3, 21) translate <-6.0, 0, -1.2> }
object { Fern(8, 1.0, 22) translate <-2.2, 0, 3.2> }
object { Fern(9, 1.2, 23) translate <4.9, 0, 2.9> }
object { Fern(9, 1.4, 24) translate <7.2, 0, -0.6> }
object { Fern(8, 1.0, 25) translate <1.2, 0, 5.5> }
object { Fern(11, 1.7, 27) translate <6.1, 0, -3.4> }
object { Fern(11, 1.6, 28) translate <-5.6, 0, -4.4> }
object { Fern(8, 0.8, 26) translate <-5.4, 0, -3.2> }

object { Bunch(7, 1.7, 31) rotate 20 * y translate <5.3, 1.62, -1.5> }
object { Banana(1.6) rotate 96 * z rotate -30 * y translate <3.7, 0.28, -2.6> }
object { Banana(1.5) rotate 94 * z rotate 35 * y translate <4.9, 0.26, -3.1> }

// The boa: from its tail on the floor to the column, up around it, and out to the right.
#declare Cx = -4.1;
#declare Cz = 0.6;
#declare Coil = 1.62;
#declare Course = spline {
  natural_spline
  0.00, <3.3, 0.10, -1.2>
  0.03, <2.5, 0.20, -2.0>
  0.06, <1.3, 0.32, -2.3>
  0.09, <0.0, 0.40, -1.9>
  0.12, <-1.3, 0.46, -1.6>
  0.15, <-2.7, 0.50, -1.4>
  #for (I, 0, 33)
    #local Deg = -90 - 30 * I;
    0.18 + 0.019 * I, <Cx + Coil * cos(radians(Deg)), 0.54 + 0.128 * I,
      Cz + Coil * sin(radians(Deg))>
  #end
  0.86, <Cx + Coil + 0.12, 4.95, Cz - 1.0>
  0.89, <Cx + Coil + 0.55, 5.2, Cz - 2.0>
  0.925, <Cx + Coil + 1.35, 5.14, Cz - 2.65>
  0.96, <Cx + Coil + 2.15, 4.82, Cz - 3.05>
  1.00, <Cx + Coil + 2.85, 4.55, Cz - 3.35>
}
object { Boa(Course, 420, y, 0.52, 1, 0.82, -0.55 * z) }
