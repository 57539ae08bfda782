// The options page: a stone tablet with a dark face for the texts, with the boa lying over its edge.
#declare Haze = 400;
#include "court.inc"

camera { location <0, 4, -13> direction z right 4 / 3 * x up y angle 54 }

// At the tablet one unit is 57.1 pixels: the face shows at x 36 to 606, y 192 to 436.
Tablet(-4.98, 5.02, 0.56, 4.84)
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
object { Boa(Course, 380, <0.1, 0.35, -1>, 0.42, 0.84, 1, -0.7 * z) }
