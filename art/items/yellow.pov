// The plain item: one ripe banana, leaning, so that it keeps its crescent from most sides.
#version 3.7;
#include "item.inc"
#include "banana.inc"

ItemStage(16, 24, 14)
object {
  Banana(rgb <0.98, 0.68, 0.02>, rgb <0.72, 0.52, 0.03>, rgb <0.13, 0.07, 0.02>, 0.55)
  rotate z * -14
  rotate y * (Turn + 20)
}
