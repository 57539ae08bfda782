#include "rivals/clever.h"

#include <algorithm>
#include <limits>

#include "game/slots.h"
#include "game/walls.h"

namespace coilrun {
namespace {

constexpr int kNoMeal = 200;
/// The largest worth of a meal: a nearer one that pays less is not looked for beyond it.
constexpr int kBestWorth = 8;
/// Places beyond twice the body's length that make a place roomy.
constexpr int kSpareRoom = 10;
/// Points a step of way, for a place that another head can contest, and for having no room.
constexpr int kPointsAStep = 10;
constexpr int kContested = 60;
constexpr int kNoRoom = 100'000;

/// Walls that TNT can blow around a place.
int BlowableAt(const State& state, Point place) {
  int count = 0;
  for (const WallRec& wall : Slots(state.Walls, 1, state.numWalls)) {
    if (wall.Present && kObstacleReach.Touches(place, wall.At())) ++count;
  }
  if (!state.level.UserItemsUsed) return count;
  for (const UserItemRec& item : Slots(state.UserItems, 1, state.numUserItems)) {
    if (item.Present && IsDestructible(item) && kObstacleReach.Touches(place, item.At())) ++count;
  }
  return count;
}

}  // namespace

Dir CleverDriver::Choose(State& state, int snake) {
  const SnakeRec& self = state.Snakes(snake);
  const Prospect onFoot = BestStep(state, snake, WallSight::kStand);
  if (onFoot.dir != Dir::kNone && onFoot.detour < kNoMeal) return onFoot.dir;
  if (self.TNT > 0) {
    const Prospect blasting = BestStep(state, snake, WallSight::kIgnored);
    if (blasting.dir != Dir::kNone && blasting.score > onFoot.score) return blasting.dir;
  }
  return onFoot.dir != Dir::kNone ? onFoot.dir : LeastBad(self);
}

CleverDriver::Prospect CleverDriver::BestStep(const State& state, int snake, WallSight walls) {
  const SnakeRec& self = state.Snakes(snake);
  ground_.Look(state, snake, appetite_.Look(state, snake), walls);
  std::array<Ground::Node, kDirections.size()> ways{};
  for (std::size_t i = 0; i < ways.size(); ++i) {
    const Ground::Node node = ground_.FirstStep(kDirections[i]);
    const bool open = node != Ground::kNowhere && kDirections[i] != Reverse(self.Dir) &&
                      ground_.IsFree(node, 1) &&
                      (walls == WallSight::kStand ||
                       BlowableAt(state, ground_.PlaceOf(node)) <= kBlastsPerCharge * self.TNT);
    ways[i] = open ? node : Ground::kNowhere;
  }
  ground_.MindHeads();
  Prospect best{.detour = kNoMeal, .score = std::numeric_limits<int>::min()};
  for (std::size_t i = 0; i < ways.size(); ++i) {
    if (ways[i] == Ground::kNowhere) continue;
    const Prospect prospect = Explore(self, kDirections[i], ways[i]);
    if (prospect.score > best.score) best = prospect;
  }
  return best;
}

CleverDriver::Prospect CleverDriver::Explore(const SnakeRec& self, Dir dir, Ground::Node from) {
  const int need = 2 * (self.Length + std::max<int>(self.Grow, 0)) + kSpareRoom;
  Prospect prospect{.dir = dir, .detour = kNoMeal};
  flood_.Begin(from, 1);
  while (const auto visit = flood_.Next(ground_)) {
    const int worth = ground_.WorthOf(visit->node);
    if (worth > 0) prospect.detour = std::min(prospect.detour, visit->step - worth);
    const bool fed = visit->step >= prospect.detour + kBestWorth;
    if (flood_.Visited() >= need && fed) break;
  }
  prospect.room = std::min(flood_.Visited(), need);
  prospect.score = prospect.room < need ? kPointsAStep * prospect.room - kNoRoom
                                        : -kPointsAStep * prospect.detour;
  if (!ground_.IsFree(from, 2)) prospect.score -= kContested;
  if (dir == self.Dir) ++prospect.score;
  return prospect;
}

/// Every step looks deadly: into the body that may be gone first, or else into the edge. Before its
/// first step a snake waits for room instead.
Dir CleverDriver::LeastBad(const SnakeRec& self) {
  if (self.Dir == Dir::kNone) return Dir::kNone;
  Dir best = self.Dir;
  int soonest = std::numeric_limits<int>::max();
  for (const Dir dir : kDirections) {
    if (dir == Reverse(self.Dir)) continue;
    const Ground::Node node = ground_.FirstStep(dir);
    const int free = node == Ground::kNowhere ? Ground::kNever - 1 : ground_.FreeFrom(node);
    if (free >= soonest) continue;
    soonest = free;
    best = dir;
  }
  return best;
}

}  // namespace coilrun
