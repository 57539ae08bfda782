// One 20 x 20 wall piece. FAMILY 0 lies across the screen, 1 stands down it, 2 is the pier.
// FREE_A, FREE_B: whether the near (left or top) or the far (right or bottom) end is free and rounded.
#version 3.7;
#include "topdown.inc"
#include "shapes.inc"

global_settings { assumed_gamma 1.0 }
TopDownCamera(20, 20)
TopDownLights(1.25)

#declare BrickPigment = function { pattern { bozo scale 2.4 turbulence 0.4 } }
#declare Grain = function { pattern { granite scale 1.6 } }

// Four tints, used by place along the run so that cells repeat without a seam.
#declare Tints = array[4] {
  rgb <0.56, 0.115, 0.045>, rgb <0.44, 0.078, 0.034>, rgb <0.63, 0.165, 0.066>, rgb <0.49, 0.092, 0.048>
}

#macro BrickTexture(Index, Corner)
  texture {
    pigment {
      function { 0.72 * BrickPigment(x, y, z) + 0.28 * Grain(x, y, z) }
      color_map {
        [0.15 Tints[Index] * 0.72]
        [0.50 Tints[Index]]
        [0.85 Tints[Index] * 1.4]
      }
      translate <13.7, 5.1, 2.3> * (Index + 1)
    }
    normal { granite 0.3 scale 2 translate 7.3 * (Index + 1) }
    finish { ambient rgb <0.16, 0.15, 0.19> diffuse 0.85 specular 0.12 roughness 0.08 }
    translate Corner
  }
#end

#declare Mortar = texture {
  pigment { rgb <0.52, 0.42, 0.32> }
  normal { bumps 0.2 scale 0.7 }
  finish { ambient 0.15 diffuse 0.6 }
}

#declare Gap = 0.42;
#declare Low = (FREE_A ? 1.0 : -30);
#declare High = (FREE_B ? 19.0 : 50);

// What the mason's trowel leaves of bricks and mortar: the rounded outside of a run and of a pier.
#declare RunShape = object { Round_Box_Union(<Low, 1.0, -12>, <High, 19.0, 9.8>, 4.6) }
#declare PierShape = object { Round_Box_Union(<0.1, 0.1, -12>, <19.9, 19.9, 10.4>, 3.6) }

// A brick within a shape, its texture anchored to its own corner; Turn is in quarters of the pier.
#macro Brick(X0, Y0, X1, Y1, Height, Index, Turn, Shape)
  intersection {
    object {
      Round_Box_Union(<X0, Y0, -20>, <X1, Y1, Height>, 1.1)
      translate <-10, -10, 0> rotate z * 90 * Turn translate <10, 10, 0>
    }
    object { Shape }
    BrickTexture(mod(Index + 400, 4), <X0, Y0, 0>)
  }
#end

#macro MortarWithin(Near, Far, Shape)
  intersection { box { Near, Far } object { Shape } texture { Mortar } }
#end

// One course of a run along x: bricks 10 long, so that two make a cell.
#macro Course(Y0, Y1, Shift, Seed)
  #for (I, -2, 3)
    Brick(I * 10 + Shift + Gap, Y0, (I + 1) * 10 + Shift - Gap, Y1, 9.2 + 0.4 * mod(I + Seed + 10, 2),
          mod(I + 400, 2) * 2 + Seed, 0, RunShape)
  #end
#end

#declare Run = union {
  Course(-4, 10 - Gap, 0, 0)
  Course(10 + Gap, 24, 5, 1)
  MortarWithin(<-40, 2.6, -13>, <60, 17.4, 8.3>, RunShape)
  MortarWithin(<-40, -1, -13>, <60, 21, 6.4>, RunShape)
}

#declare Pier = union {
  #for (Quarter, 0, 3)
    Brick(-4, -4, 13.4 - Gap, 6.6 - Gap, 10, Quarter, Quarter, PierShape)
  #end
  MortarWithin(<3, 3, -13>, <17, 17, 8.6>, PierShape)
  MortarWithin(<-1, -1, -13>, <21, 21, 6.8>, PierShape)
  object {
    Round_Box_Union(<6.5, 6.5, 0>, <13.5, 13.5, 13>, 2.8)
    texture {
      pigment { granite scale 3 color_map { [0.2 rgb <0.62, 0.36, 0.16>] [0.8 rgb <0.85, 0.56, 0.28>] } }
      finish { ambient 0.14 diffuse 0.85 specular 0.2 roughness 0.05 }
    }
  }
}

#switch (FAMILY)
  #case (0) object { Run } #break
  #case (1) object { Run matrix <0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0> } #break
  #case (2) object { Pier } #break
#end
