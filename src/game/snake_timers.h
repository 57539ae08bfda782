#pragma once

#include "model/state.h"

namespace coilrun {

/// Gives every step timer and every snake the speed of the settings.
void ResetSnakeTimers(State& state);
/// Switches on the step timers of the AI snakes in play, each with its snake's `BaseInterval`.
void StartSnakeTimers(State& state);
/// Switches off the step timers of the AI snakes in play and makes those snakes stand still.
void StopSnakeTimers(State& state);

}  // namespace coilrun
