#pragma once

#include "model/state.h"

namespace coilrun {

/// The draws that let blue, black, TNT and power items come and go: once a player step. An absent
/// item gets a new place every time, whether it comes back or not.
void DrawAppearances(State& state);

}  // namespace coilrun
