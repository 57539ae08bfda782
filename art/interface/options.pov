// The options page: a stone tablet with a dark face for the texts, the boa lies over its edge.
#declare Haze = 400;
#include "court.inc"

camera { location <0, 4, -13> direction z right 4 / 3 * x up y angle 54 }

// At the tablet one unit is 57.1 pixels: the face shows at x 36 to 606, y 192 to 436.
#declare Left = -4.98;
#declare Right = 5.02;
#declare Low = 0.56;
#declare High = 4.84;

#declare Slate = texture {
  pigment { granite scale 2.2 colour_map { [0 rgb <0.012, 0.016, 0.014>] [1 rgb <0.024, 0.030, 0.026>] } }
  finish { ambient 0.3 diffuse 0.3 }
}
#macro Bar(From, To, Deep, Seed)
  superellipsoid { <0.12, 0.12>
    scale (To - From) / 2 + Deep * z
    translate (From + To) / 2
    Stone(Sand_stone * 0.95, Seed)
  }
#end
box { <Left - 0.2, Low - 0.2, -1.95>, <Right + 0.2, High + 0.2, -1.5> texture { Slate } }
Bar(<Left - 0.34, High - 0.02, -2>, <Right + 0.34, High + 0.32, -2>, 0.42, 1)
Bar(<Left - 0.34, Low - 0.5, -2>, <Right + 0.34, Low + 0.02, -2>, 0.42, 2)
Bar(<Left - 0.32, Low - 0.1, -2>, <Left + 0.02, High + 0.1, -2>, 0.36, 3)
Bar(<Right - 0.02, Low - 0.1, -2>, <Right + 0.32, High + 0.1, -2>, 0.36, 4)

object { Fern(10, 1.5, 41) translate <-5.9, -0.3, -2.6> }
object { Fern(10, 1.5, 42) translate <6.0, -0.3, -2.6> }

#declare Course = spline {
  natural_spline
  0.00, <-5.66, 1.9, -2.3>
  0.06, <-5.60, 2.6, -2.36>
  0.13, <-5.58, 3.5, -2.3>
  0.20, <-5.62, 4.4, -2.15>
  0.27, <-5.30, 5.25, -2.0>
  0.34, <-4.50, 5.55, -1.9>
  0.42, <-3.2, 5.52, -2.1>
  0.50, <-1.9, 5.52, -1.7>
  0.58, <-0.6, 5.52, -2.1>
  0.66, <0.8, 5.52, -1.8>
  0.74, <2.2, 5.54, -1.9>
  0.81, <3.4, 5.62, -2.2>
  0.87, <4.3, 5.50, -2.6>
  0.92, <4.75, 5.0, -3.0>
  0.96, <4.7, 4.45, -3.25>
  1.00, <4.45, 3.95, -3.5>
}
#declare Steps = 380;
#declare Spine = array[Steps + 1];
#declare Long = 0;
Resample(Course, Steps, Spine, Long)
#declare Wide = spline {
  linear_spline
  0, 0.0 0.05, 0.05 1, 0.13 2.5, 0.26 4, 0.36 6, 0.42 Long - 3, 0.42 Long - 1.7, 0.34 Long - 1.35, 0.38 Long - 1.1, 0.47
  Long - 0.85, 0.52 Long - 0.6, 0.50 Long - 0.36, 0.41 Long - 0.16, 0.30 Long - 0.06, 0.20 Long - 0.02, 0.11 Long, 0.0
}
#declare Tall = spline {
  linear_spline
  0, 0.0 0.05, 0.05 1, 0.13 2.5, 0.26 4, 0.36 6, 0.42 Long - 3, 0.42 Long - 1.7, 0.34 Long - 1.35, 0.34 Long - 1.1, 0.37
  Long - 0.85, 0.37 Long - 0.6, 0.34 Long - 0.36, 0.28 Long - 0.16, 0.21 Long - 0.06, 0.14 Long - 0.02, 0.08 Long, 0.0
}
#declare Back = <0.1, 0.35, -1>;
object { Sweep(Spine, Steps, Long, 28, Wide, Tall, Back, 1) texture { Green_skin } }
#declare Nose = Spine[Steps];
#declare Way = vnormalize(Spine[Steps] - Spine[Steps - 10]);
#declare Side = vnormalize(vcross(Back, Way));
#declare Over = vcross(Way, Side);
#for (S, -1, 1, 2)
  Eyeball(Nose - Way * 0.64 + Side * S * 0.35 + Over * 0.25, 0.2, Way * 0.6 + Side * S * 0.3 + Over * 0.8)
  sphere { Nose - Way * 0.07 + Side * S * 0.11 + Over * 0.10, 0.03 pigment { rgb 0.01 } }
#end
union {
  cone { Nose - Way * 0.2, 0.045, Nose + Way * 0.35, 0.04 }
  #for (S, -1, 1, 2) cone { Nose + Way * 0.34, 0.036, Nose + Way * 0.58 + Side * S * 0.13, 0.008 } #end
  pigment { rgb <0.8, 0.03, 0.06> }
  finish { ambient 0.1 diffuse 0.8 specular 0.4 }
}
