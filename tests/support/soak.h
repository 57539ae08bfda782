#pragma once

#include "rivals/rivals.h"
#include "support/arena.h"
#include "support/match.h"

namespace coilrun {

/// Plays match number `seed`, 16 snakes in an arena of its own, to its end; what was wrong with it,
/// or nothing.
inline std::string SoakFault(std::uint64_t seed) {
  const bool hunting = seed % 3 == 2;
  const ArenaPlan plan{.openEdges = seed % 3 == 0,
                       .rim = seed % 3 == 1,
                       .segments = static_cast<int>(3 * seed % 16),
                       .rivals = 15,
                       .keys = "numRed=2\r\nnumBlue=3\r\nnumBlack=2\r\nnumTNT=3\r\n",
                       .seed = seed};
  const RivalList kinds{{RivalKind::kClever, RivalKind::kClassic, RivalKind::kMaster}};
  Match match(
      {.level = Arena(plan).Text(), .hunting = hunting, .limit = hunting ? 20 : 5, .seed = seed},
      MakeDrivers(kinds));
  match.Play(600);
  if (!match.ended) return "it has no end";
  for (int s = 2; s <= kMaxSnakes; ++s) {
    const SnakeRec& snake = match.state().Snakes(s);
    const std::string who = "snake " + std::to_string(s) + ": ";
    if (match.Of(s).Deaths() != snake.Deaths) return who + "deaths that nobody saw";
    if (snake.Length < 1 || snake.Length > kLastSeg + 1) return who + "no such length";
  }
  return {};
}

}  // namespace coilrun
