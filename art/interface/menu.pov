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
    0.18 + 0.019 * I, <Cx + Coil * cos(radians(Deg)), 0.54 + 0.128 * I, Cz + Coil * sin(radians(Deg))>
  #end
  0.86, <Cx + Coil + 0.12, 4.95, Cz - 1.0>
  0.89, <Cx + Coil + 0.55, 5.2, Cz - 2.0>
  0.925, <Cx + Coil + 1.35, 5.14, Cz - 2.65>
  0.96, <Cx + Coil + 2.15, 4.82, Cz - 3.05>
  1.00, <Cx + Coil + 2.85, 4.55, Cz - 3.35>
}
#declare Steps = 420;
#declare Spine = array[Steps + 1];
#declare Long = 0;
Resample(Course, Steps, Spine, Long)
#declare Wide = spline {
  linear_spline
  0, 0.02 0.5, 0.10 2, 0.26 4.5, 0.45 7, 0.52 Long - 3, 0.50 Long - 1.9, 0.40 Long - 1.45, 0.44 Long - 1.15, 0.56
  Long - 0.9, 0.62 Long - 0.65, 0.60 Long - 0.4, 0.50 Long - 0.18, 0.37 Long - 0.07, 0.26 Long - 0.02, 0.14 Long, 0.0
}
#declare Tall = spline {
  linear_spline
  0, 0.02 0.5, 0.10 2, 0.26 4.5, 0.45 7, 0.52 Long - 3, 0.50 Long - 1.9, 0.40 Long - 1.45, 0.40 Long - 1.15, 0.43
  Long - 0.9, 0.43 Long - 0.65, 0.40 Long - 0.4, 0.33 Long - 0.18, 0.25 Long - 0.07, 0.17 Long - 0.02, 0.09 Long, 0.0
}
object { Sweep(Spine, Steps, Long, 28, Wide, Tall, y, 0.82) texture { Green_skin } }
#declare Nose = Spine[Steps];
#declare Way = vnormalize(Spine[Steps] - Spine[Steps - 12]);
#declare Side = vnormalize(vcross(y, Way));
#declare Over = vcross(Way, Side);
#for (S, -1, 1, 2)
  Eyeball(Nose - Way * 0.74 + Side * S * 0.42 + Over * 0.30, 0.23, Way * 0.75 + Side * S * 0.55 - z * 0.55)
  sphere { Nose - Way * 0.09 + Side * S * 0.13 + Over * 0.11, 0.035 pigment { rgb 0.01 } }
#end
union {
  sphere_sweep { cubic_spline 6, Nose - Way * 0.5, 0.05, Nose - Way * 0.2, 0.05, Nose + Way * 0.12 - Over * 0.05, 0.05,
    Nose + Way * 0.4 - Over * 0.02, 0.045, Nose + Way * 0.62 + Over * 0.06, 0.035, Nose + Way * 0.7 + Over * 0.1, 0.02 }
  #for (S, -1, 1, 2)
    cone { Nose + Way * 0.58 + Over * 0.04, 0.036, Nose + Way * 0.9 + Side * S * 0.17 + Over * 0.1, 0.008 }
  #end
  pigment { rgb <0.8, 0.03, 0.06> }
  finish { ambient 0.1 diffuse 0.8 specular 0.4 }
}
