#pragma once

#include "model/state.h"

namespace coilrun {

/// The rules' part of the one-second tick: immortality, level clock, "Speed!" option.
void TickSecond(State& state);
/// The `ResetSpeed` timer has fired: the player's normal speed again.
void SpeedReset(State& state);

/// Lets the first red item show again where it was, unless no place was found for it.
void ShowFirstRed(State& state);
/// A step period as snakes keep it: whole milliseconds, halves to even, within 16 bits.
Int16 StepPeriod(double milliseconds);

}  // namespace coilrun
