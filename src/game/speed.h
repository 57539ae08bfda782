#pragma once

#include "model/state.h"

namespace coilrun {

/// The rules' part of the one-second tick: immortality, level clock, "Speed!" option.
void TickSecond(State& state);
/// The `ResetSpeed` timer has fired: the player's normal speed again.
void SpeedReset(State& state);

}  // namespace coilrun
