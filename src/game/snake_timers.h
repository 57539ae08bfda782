#pragma once

#include "model/state.h"

namespace coilrun {

/// Gives every step timer and every snake the speed of the settings.
void ResetSnakeTimers(State& state);
/// Switches the step timers of the AI snakes in play on, each with its snake's `BaseInterval`.
void StartSnakeTimers(State& state);
/// Switches the step timers of the AI snakes in play off and lets those snakes stand still.
void StopSnakeTimers(State& state);

}  // namespace coilrun
