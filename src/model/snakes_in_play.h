#pragma once

#include <algorithm>

#include "model/state.h"

namespace coilrun {

/// Snakes in play, whatever number the state holds: 1 to 16.
inline int SnakesInPlay(const State& state) {
  return std::clamp<int>(state.mode.NumSnakes, 1, kMaxSnakes);
}

}  // namespace coilrun
