#pragma once

#include <algorithm>

#include "model/state.h"

namespace coilrun {

/// How many snakes are in play, 1 to 16, whatever number the state holds.
inline int SnakesInPlay(const State& state) {
  return std::clamp<int>(state.mode.NumSnakes, 1, kMaxSnakes);
}

}  // namespace coilrun
