#pragma once

#include <vector>

#include "model/state.h"

namespace coilrun {

/// What counts in a match: a snake's length when hunting, otherwise its frags.
int ReachedInMatch(const State& state, int snake);
/// The snakes in play, the best first; among equals, the one that died less often.
std::vector<int> Ranking(const State& state);

}  // namespace coilrun
