#pragma once

#include "model/state.h"

namespace coilrun {

/// The part of the one-second tick that belongs to the rules: immortality, level clock, "Speed!".
void TickSecond(State& state);
/// Gives the player the normal speed back, when the `ResetSpeed` timer has fired.
void SpeedReset(State& state);

/// Shows the first red item again where it was, unless no place was found for it.
void ShowFirstRed(State& state);
/// A step period as snakes store it: whole milliseconds, halves to even, within 16 bits.
Int16 StepPeriod(double milliseconds);

}  // namespace coilrun
