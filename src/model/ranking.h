#pragma once

#include <vector>

#include "model/state.h"

namespace coilrun {

/// What counts in a match: a snake's length when hunting, else its frags.
int ReachedInMatch(const State& state, int snake);
/// The snakes in play, the best first; of those that have reached the same, who died less.
std::vector<int> Ranking(const State& state);

}  // namespace coilrun
