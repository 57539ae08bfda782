#pragma once

#include "model/state.h"

namespace coilrun {

/// Which snakes a frame shows.
using SnakesShown = Table<bool, kMaxSnakes>;

/// Puts the heads of waiting snakes on their start cells; called beside the start markers.
void PlaceWaitingSnakes(State& state);
/// Ends every immortality that has run out; called in a pass in which the player steps.
void EndSpentImmortality(State& state);
/// The main loop's pass over the snakes, which ends at the first snake that waits for the start.
/// Ends every immortality that has run out; immortal snakes share one blink.
SnakesShown SnakesShownInLoop(State& state);
/// The same for a complete frame (`DrawSnakes`), where a waiting snake is only skipped.
SnakesShown SnakesShownInFrame(State& state);

}  // namespace coilrun
