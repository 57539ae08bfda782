#pragma once

#include "model/state.h"

namespace coilrun {

/// The rolls that let blue, black, TNT and power items come and go: once a player step. An absent
/// item gets a new place every time, whether it comes back or not.
void RollAppearances(State& state);

}  // namespace coilrun
