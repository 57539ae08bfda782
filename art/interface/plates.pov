// Metal-framed plates, one unit a pixel: Which 1 is a menu button, 2 the panel of the level-start
// screen.
#version 3.7;
#ifndef (Which) #declare Which = 1; #end
#ifndef (Lit) #declare Lit = 0; #end
global_settings { assumed_gamma 1 max_trace_level 4 }
#default { finish { ambient 0 } }

#switch (Which)
  #case (1) #declare Wide = 250; #declare High = 30; #break
  #case (2) #declare Wide = 315; #declare High = 201; #break
#end

camera { orthographic location <Wide / 2, High / 2, -200> direction z right Wide * x up High * y }
light_source { <-300, 500, -500> rgb 1.25 parallel point_at 0 }
light_source { <200, -100, -400> rgb <0.25, 0.28, 0.34> shadowless parallel point_at 0 }
sphere { 0, 3000
  pigment { gradient y colour_map { [0.3 rgb <0.06, 0.04, 0.02>] [0.52 rgb <0.35, 0.24,
    0.12>] [0.6 rgb <1.1, 0.9, 0.6>] } scale 3000 translate -1500 * y }
  finish { emission 1 diffuse 0 }
  no_image
  no_shadow
}

#declare Bronze = texture {
  pigment { rgb <0.72, 0.46, 0.16> }
  normal { granite 0.18 scale 6 }
  finish { diffuse 0.5 specular 0.8 roughness 0.03 metallic reflection { 0.35 metallic } }
}
#declare Bright_gold = texture {
  pigment { rgb <1.0, 0.72, 0.22> }
  finish { ambient 0.1 diffuse 0.55 specular 0.9 roughness 0.02 metallic reflection { 0.4 metallic
    } }
}

// A frame of round bars around a rectangle.
#macro Frame(X0, Y0, X1, Y1, R, Metal)
  union {
    cylinder { <X0, Y0, 0>, <X1, Y0, 0>, R }
    cylinder { <X0, Y1, 0>, <X1, Y1, 0>, R }
    cylinder { <X0, Y0, 0>, <X0, Y1, 0>, R }
    cylinder { <X1, Y0, 0>, <X1, Y1, 0>, R }
    sphere { <X0, Y0, 0>, R } sphere { <X1, Y0, 0>, R } sphere { <X0, Y1, 0>, R }
      sphere { <X1, Y1, 0>, R }
    texture { Metal }
  }
#end

#macro Stud(X, Y, R, Metal)
  sphere { 0, R scale <1, 1, 0.7> translate <X, Y, -1> texture { Metal } }
#end

#if (Which = 1)
  #if (Lit)
    #declare Metal = texture { Bright_gold }
    #declare Face = <0.72, 0.20, 0.02>;
  #else
    #declare Metal = texture { Bronze }
    #declare Face = <0.035, 0.13, 0.06>;
  #end
  Frame(3, 7, 247, 23, 2, Metal)
  box { <3, 7, 0>, <247, 23, 3>
    pigment { granite scale 22 colour_map { [0 rgb Face * 0.55] [0.6 rgb Face] [1 rgb Face * 1.5]
      } }
    normal { granite 0.25 scale 8 }
    finish { ambient 0.12 * Lit diffuse 0.9 specular 0.25 roughness 0.03 }
  }
  Frame(6.5, 10, 243.5, 20, 0.55, Metal)
  #for (S, 0, 1) Stud(21 + 208 * S, 15, 2.6, Metal) Stud(28.5 + 193 * S, 15, 1.3, Metal) #end
#else
  union {
    cylinder { <4, 4, 0>, <4, 197, 0>, 3.6 }
    cylinder { <311, 4, 0>, <311, 197, 0>, 3.6 }
    cylinder { <4, 197, 0>, <311, 197, 0>, 3.6 }
    cylinder { <4, 1.4, 0>, <311, 1.4, 0>, 1.2 }
    cylinder { <6, 18, 0>, <309, 18, 0>, 1.2 }
    texture { Bronze }
  }
  box { <4, 1, 0>, <311, 197, 4>
    pigment {
      granite scale 60
      colour_map { [0 rgb <0.009, 0.014, 0.011>] [0.6 rgb <0.013, 0.020, 0.015>] [1 rgb <0.019,
        0.027, 0.020>] }
    }
    finish { ambient 0.35 diffuse 0.8 }
  }
  // Below: a strip for the key's name and the five lights.
  box { <6, 2, -0.4>, <309, 17.4, 1> pigment { rgb <0.030, 0.020, 0.010> }
    finish { ambient 0.3 diffuse 0.6 } }
  Frame(262.5, 2.2, 312.6, 9.6, 0.6, Bronze)
  box { <263, 2.2, -3.2>, <312.6, 9.6, 1> pigment { rgb <0.006, 0.007, 0.006> }
    finish { ambient 0.4 diffuse 0.6 } }
  #for (I, 0, 1) Stud(4.6 + 305.8 * I, 196.4, 4.5, Bright_gold) Stud(4.4 + 306.2 * I, 18, 3.4,
    Bright_gold) #end
  Stud(157.5, 197, 4.0, Bright_gold)
#end
