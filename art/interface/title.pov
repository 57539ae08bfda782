// The name of the game, written with snakes: the first letter has the head, the last one the tail.
#version 3.7;
global_settings { assumed_gamma 1 max_trace_level 3 }
#default { finish { ambient 0 } }
#include "serpent.inc"

#declare Broad = 13.9;
camera { orthographic location <Broad / 2 - 1.6, 1.08, -20> look_at <Broad / 2 - 1.6, 1.08,
  0> right Broad * x up Broad * 0.25 * y }
light_source { <-14, 22, -26> rgb 1.5 }
light_source { <10, -4, -22> rgb <0.45, 0.42, 0.3> shadowless }
light_source { <0, 30, 4> rgb <0.8, 0.8, 0.6> shadowless }

#declare Thick = 0.33;
#declare Lines = 90;

#declare Letter_skin = texture {
  pigment {
    uv_mapping
    function { select(Saddle(x, y, z) - 0.72, 1, select(Saddle(x, y, z) - 0.9, 0.6, 0.3 * Belly(x,
      y, z))) }
    colour_map {
      [0 rgb <0.13, 0.62, 0.03>] [0.15 rgb <0.10, 0.50, 0.02>] [0.5 rgb <0.01, 0.10,
        0.01>] [0.7 rgb <0.01, 0.10, 0.01>]
      [0.8 rgb <1.0, 0.74, 0.03>] [1 rgb <1.0, 0.78, 0.05>]
    }
  }
  finish { ambient 0.08 diffuse 0.9 specular 0.7 roughness 0.015 }
  normal { uv_mapping function { Scale_relief(x, y, z) } 0.6 accuracy 0.004 }
}

// A stroke of the pen along a spline, with round ends of the given half widths.
#macro Pen(Line, First, Last)
  #local At = array[Lines + 1];
  #local Long = 0;
  Resample(Line, Lines, At, Long)
  #local Girth = spline {
    linear_spline
    0, 0 0.02, First * 0.36 0.08, First * 0.66 0.18, First * 0.9 0.3, First
    Long * 0.55, (First + Last) / 2 + (Thick - (First + Last) / 2) * 0.9
    Long - 0.3, Last Long - 0.18, Last * 0.9 Long - 0.08, Last * 0.66 Long - 0.02,
      Last * 0.36 Long, 0
  }
  object { Sweep(At, Lines, Long, 24, Girth, Girth, -z, 1.25) texture { Letter_skin } }
#end

#macro Arc(Line_start, Centre, Radius, From, To, Parts)
  #for (K, 0, Parts)
    #local Deg = From + (To - From) * K / Parts;
    Line_start + K * 0.02, Centre + Radius * <cos(radians(Deg)), sin(radians(Deg)), 0>
  #end
#end

// C: tail end below, head above.
#declare C_line = spline {
  natural_spline
  #for (K, 0, 20)
    K / 20, <0, 1.02, 0> + 1.05 * <cos(radians(-42 - 13.2 * K)), sin(radians(-42 - 13.2 * K)), 0>
  #end
}
#declare At_c = array[Lines + 1];
#declare Long_c = 0;
Resample(C_line, Lines, At_c, Long_c)
#declare Girth_c = spline {
  linear_spline
  0, 0.01 0.06, 0.06 0.5, 0.17 1.2, 0.30 1.8, Thick Long_c - 1.1, Thick Long_c - 0.8,
    0.30 Long_c - 0.55, 0.40 Long_c - 0.38, 0.44
  Long_c - 0.2, 0.38 Long_c - 0.06, 0.24 Long_c - 0.02, 0.13 Long_c, 0
}
object { Sweep(At_c, Lines, Long_c, 24, Girth_c, Girth_c, -z, 1.25) texture { Letter_skin } }
#declare Nose = At_c[Lines];
#declare Way = vnormalize(At_c[Lines] - At_c[Lines - 4]);
#declare Side = vcross(Way, z);
#for (S, -1, 1, 2)
  Eyeball(Nose - Way * 0.42 + Side * S * 0.26 - z * 0.26, 0.2, Way * 0.5 - z * 0.9)
#end
union {
  cone { Nose - Way * 0.1, 0.055, Nose + Way * 0.3, 0.05 }
  #for (S, -1, 1, 2) cone { Nose + Way * 0.28, 0.05, Nose + Way * 0.52 + Side * S * 0.14, 0.015 }
    #end
  pigment { rgb <0.9, 0.03, 0.07> }
  finish { ambient 0.2 diffuse 0.8 }
  translate 0.05 * z
}

// o
#declare O_line = spline {
  natural_spline
  #for (K, 0, 24) K / 24, <2.2, 0.74, 0> + 0.76 * <cos(radians(-88 - 15.2 * K)),
    sin(radians(-88 - 15.2 * K)), 0> #end
}
#declare At_o = array[Lines + 1];
#declare Long_o = 0;
Resample(O_line, Lines, At_o, Long_o)
#declare Girth_o = spline { linear_spline 0, Thick 99, Thick }
object { Sweep(At_o, Lines, Long_o, 24, Girth_o, Girth_o, -z, 6 / Long_o) texture { Letter_skin } }

// i with a golden dot, l
Pen(spline { linear_spline 0, <3.74, -0.3, 0> 1, <3.74, 1.66, 0> }, Thick, Thick)
sphere { <3.74, 2.25, 0>, 0.36
  pigment { rgb <1, 0.66, 0.03> }
  finish { ambient 0.08 diffuse 0.8 specular 0.9 roughness 0.01 }
}
Pen(spline { linear_spline 0, <4.72, -0.3, 0> 1, <4.72, 2.56, 0> }, Thick, Thick)

// r
Pen(spline { linear_spline 0, <5.70, -0.3, 0> 1, <5.70, 1.7, 0> }, Thick, Thick)
Pen(spline {
  natural_spline
  #for (K, 0, 12) K / 12, <6.36, 0.8, 0> + 0.66 * <cos(radians(185 - 11 * K)),
    sin(radians(185 - 11 * K)), 0> #end
}, 0.2, Thick)

// u
Pen(spline {
  natural_spline
  0, <7.36, 1.7, 0> 0.12, <7.36, 1.2, 0> 0.25, <7.37, 0.66, 0>
  #for (K, 1, 11) 0.25 + 0.04 * K, <8.02, 0.64, 0> + 0.65 * <cos(radians(180 + 15 * K)),
    sin(radians(180 + 15 * K)), 0> #end
  0.75, <8.67, 0.66, 0> 0.87, <8.67, 1.2, 0> 1, <8.67, 1.7, 0>
}, Thick, Thick)

// n, running out into the tail
Pen(spline { linear_spline 0, <9.68, -0.3, 0> 1, <9.68, 1.7, 0> }, Thick, Thick)
Pen(spline {
  natural_spline
  0, <9.68, 0.5, 0> 0.1, <9.69, 0.84, 0>
  #for (K, 1, 11) 0.1 + 0.05 * K, <10.34, 0.86, 0> + 0.65 * <cos(radians(180 - 15 * K)),
    sin(radians(180 - 15 * K)), 0> #end
  0.72, <10.99, 0.7, 0> 0.82, <11.02, 0.3, 0> 0.9, <11.22, -0.08, 0> 1.0, <11.75, -0.16, 0>
}, 0.3, 0.05)
