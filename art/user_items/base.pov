// The slab that a moving thing stands on; it fills its cell. KIND: 0 stone, 1 steel.
#version 3.7;
#include "stage.inc"
Stage(90, 0)

plane { y, -3 Plain(<0.06, 0.06, 0.07>) }
#if (KIND = 0)
  object { Round_Box_Union(<-9.8, -3, -9.8>, <9.8, 0, 9.8>, 1.5) Mottled(<0.72, 0.67, 0.58>, <0.90, 0.85, 0.75>, 5) }
  difference {
    object { Round_Box_Union(<-8.2, -1, -8.2>, <8.2, 0.7, 8.2>, 0.6) }
    Mottled(<0.60, 0.55, 0.47>, <0.78, 0.72, 0.62>, 5)
  }
#else
  object { Round_Box_Union(<-9.8, -3, -9.8>, <9.8, 0, 9.8>, 1.2) Mottled(<0.30, 0.34, 0.40>, <0.46, 0.50, 0.57>, 3) }
  object { Round_Box_Union(<-8.4, -1, -8.4>, <8.4, 0.6, 8.4>, 0.6) Mottled(<0.09, 0.12, 0.18>, <0.16, 0.20, 0.28>, 3) }
  #for (I, 0, 3)
    sphere { <8.6 * (mod(I, 2) * 2 - 1), 0.2, 8.6 * (floor(I / 2) * 2 - 1)>, 0.9 Plain(<0.85, 0.87, 0.92>) }
  #end
#end
