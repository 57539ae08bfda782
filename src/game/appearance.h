#pragma once

#include "model/state.h"

namespace coilrun {

/// Rolls which blue, black, TNT and power items come and go: once per player step. An absent item
/// gets a new place every time, whether it comes back or not.
void RollAppearances(State& state);

}  // namespace coilrun
