#pragma once

#include "model/state.h"

namespace coilrun {

/// A person asks for a turn: it sets `NextDir`, or, with queued turns, waits its turn. A press
/// that exactly reverses the one asked for last takes that one back.
void AskTurn(State& state, int person, Dir press);
/// After a step of the person's snake: the oldest press that waits is taken next.
void TakeQueuedTurn(State& state, int person);

}  // namespace coilrun
