// The rare item: a cut crystal, pointed above and below, with flat facets that flash as it turns.
#version 3.7;
#include "item.inc"

ItemStage(16, 24, 12)

// Six sides; the girdle is not quite even, so that no two of the 45 frames are alike.
#declare Sides = 6;
#declare Reach = array[6] { 6.1, 5.6, 6.2, 5.7, 6.0, 5.5 }
#macro Corner(I, Scale, Height)
  #local J = mod(I, Sides);
  <Reach[J] * Scale * cos(radians(60 * J)), Height, Reach[J] * Scale * sin(radians(60 * J))>
#end

#macro Facet(P, Q, R)
  triangle { P, Q, R }
#end

mesh {
  #for (I, 0, Sides - 1)
    Facet(<0, 10.4, 0>, Corner(I, 0.62, 6.0), Corner(I + 1, 0.62, 6.0))
    Facet(Corner(I, 0.62, 6.0), Corner(I + 1, 0.62, 6.0), Corner(I + 1, 1, 1.5))
    Facet(Corner(I, 0.62, 6.0), Corner(I + 1, 1, 1.5), Corner(I, 1, 1.5))
    Facet(<0, -10.4, 0>, Corner(I, 1, 1.5), Corner(I + 1, 1, 1.5))
  #end
  pigment { rgb <0.05, 0.30, 0.95> }
  finish { ambient rgb <0.10, 0.22, 0.42> diffuse 0.75 specular 0.9 roughness 0.03 reflection { 0.10, 0.55 } }
  rotate y * (Turn + 7)
}
