#include "model/ranking.h"

#include <algorithm>
#include <numeric>

#include "model/snakes_in_play.h"

namespace coilrun {

int ReachedInMatch(const State& state, int snake) {
  const SnakeRec& fighter = state.Snakes(snake);
  return state.mode.HuntingMode ? fighter.Length : fighter.Frags;
}

std::vector<int> Ranking(const State& state) {
  std::vector<int> ranking(static_cast<std::size_t>(SnakesInPlay(state)));
  std::iota(ranking.begin(), ranking.end(), 1);
  std::stable_sort(ranking.begin(), ranking.end(), [&state](int a, int b) {
    const int first = ReachedInMatch(state, a);
    const int second = ReachedInMatch(state, b);
    if (first != second) return first > second;
    return state.Snakes(a).Deaths < state.Snakes(b).Deaths;
  });
  return ranking;
}

}  // namespace coilrun
