#pragma once

#include "model/state.h"

namespace coilrun {

/// A person asks for a turn: it sets `NextDir` or, when turns queue up, waits in line. A press that
/// exactly reverses the last one asked for takes that one back.
void AskTurn(State& state, int person, Dir press);
/// After a step of the person's snake: makes the oldest press that waits the next to be taken.
void TakeQueuedTurn(State& state, int person);

}  // namespace coilrun
