#pragma once

#include "model/state.h"

namespace coilrun {

/// Where an AI snake wants to go; `kNone` leaves its direction as it is. Writes nothing but
/// `TargetReached`.
Dir AIChoose(State& state, int snake);

}  // namespace coilrun
