#include "rivals/clever.h"

#include <algorithm>
#include <limits>

#include "game/slots.h"
#include "game/walls.h"

namespace coilrun {
namespace {

/// The largest worth of a meal: one that pays less is not looked for further than this beyond it.
constexpr int kBestWorth = 8;
/// Steps to a meal at most.
constexpr int kFarthestMeal = 150;
/// A way that lasts so many steps more than the body is long goes on behind its own tail.
constexpr int kSpareSteps = 4;
constexpr int kLongestWay = 100;
/// Tries to find a way that lasts, from a meal and from a step.
constexpr int kTriesFromMeal = 150;
constexpr int kTriesFromStep = 300;
/// Places wanted for each cell of the body, in quarters, before a meal and without one; some more
/// on top.
constexpr int kRoomForMeal = 6;
constexpr int kRoomToRoam = 8;
constexpr int kSpareRoom = 10;
/// Points of a step: for each further one, each place of room, each neighbour that is not free,
/// another head that can be there, and going on straight.
constexpr int kLasting = 100;
constexpr int kRoomy = 300;
constexpr int kNarrow = -500;
constexpr int kContested = -600;
constexpr int kStraight = 1;

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

/// The length that a snake has when it has grown as far as it will.
int FullLength(const SnakeRec& snake) {
  return std::min(snake.Length + std::max<int>(snake.Grow, 0), kMaxLength);
}

int WantedRoom(int length, int quarters) {
  return quarters * length / 4 + kSpareRoom;
}

}  // namespace

Dir CleverDriver::Choose(State& state, int snake) {
  const SnakeRec& self = state.Snakes(snake);
  Plan plan = Look(state, snake, WallSight::kStand);
  if (self.TNT > 0 && !plan.fed) {
    const Plan blasting = Look(state, snake, WallSight::kIgnored);
    if (blasting.fed || (blasting.safe && !plan.safe)) plan = blasting;
  }
  return plan.dir != Dir::kNone ? plan.dir : LeastBad(self);
}

CleverDriver::Plan CleverDriver::Look(const State& state, int snake, WallSight walls) {
  const SnakeRec& self = state.Snakes(snake);
  ground_.Look(state, snake, appetite_.Look(state, snake), walls);
  const std::span<const Way> ways = Ways(state, self, walls);
  if (ways.empty()) return {};
  advance_.Look(ground_, state, snake);
  const int length = FullLength(self);
  const Plan meal = Feed(length, ways);
  return meal.fed ? meal : Roam(length, self.Dir, ways);
}

std::span<const CleverDriver::Way> CleverDriver::Ways(const State& state, const SnakeRec& self,
                                                      WallSight walls) {
  std::size_t count = 0;
  for (const Dir dir : kDirections) {
    const Ground::Node node = ground_.FirstStep(dir);
    if (node == Ground::kNowhere || dir == Reverse(self.Dir) || !ground_.IsFree(node, 1)) continue;
    const bool blown = walls == WallSight::kIgnored &&
                       BlowableAt(state, ground_.PlaceOf(node)) > kBlastsPerCharge * self.TNT;
    if (!blown) ways_[count++] = {dir, node};
  }
  return {ways_.data(), count};
}

CleverDriver::Plan CleverDriver::Feed(int length, std::span<const Way> ways) {
  for (const Meal& meal : Meals(ways)) {
    if (!IsSafe(meal, length)) continue;
    const auto first = std::find_if(ways.begin(), ways.end(),
                                    [this](const Way& way) { return way.node == path_[0]; });
    return {first->dir, true, true};
  }
  return {};
}

/// The meals that this snake comes to before others, the best first.
std::span<const CleverDriver::Meal> CleverDriver::Meals(std::span<const Way> ways) {
  flood_.Begin(ground_, advance_);
  for (const Way& way : ways) {
    if (advance_.IsOurs(way.node, 1)) flood_.Enter(way.node, 1);
  }
  std::size_t count = 0;
  int best = kFarthestMeal;
  while (const auto visit = flood_.Next()) {
    if (count == kMeals || visit->step > std::min(best + kBestWorth, kFarthestMeal)) break;
    const int worth = ground_.WorthOf(visit->node);
    if (worth == 0) continue;
    meals_[count++] = {visit->node, visit->step, visit->step - worth};
    best = std::min(best, visit->step - worth);
  }
  const auto meals = std::span(meals_).first(count);
  std::stable_sort(meals.begin(), meals.end(),
                   [](const Meal& a, const Meal& b) { return a.detour < b.detour; });
  return meals;
}

/// Leaves the way to the meal in `path_`.
bool CleverDriver::IsSafe(const Meal& meal, int length) {
  Ground::Node node = meal.node;
  for (auto i = static_cast<std::size_t>(meal.step); i > 0; --i) {
    path_[i - 1] = node;
    node = flood_.Before(node);
  }
  const int room = WantedRoom(length + 1, kRoomForMeal);
  if (Room(path_[0], room) < room) return false;
  foresight_.Begin(ground_, advance_, length);
  for (int i = 0; i < meal.step; ++i) foresight_.Walk(path_[static_cast<std::size_t>(i)]);
  foresight_.Eat();
  const int wanted = std::min(meal.step + length + 1 + kSpareSteps,
                              std::max(meal.step + kSpareSteps, kLongestWay));
  return foresight_.Last(wanted, kTriesFromMeal) >= wanted;
}

CleverDriver::Plan CleverDriver::Roam(int length, Dir heading, std::span<const Way> ways) {
  const int wanted = std::min(length + kSpareSteps, kLongestWay);
  const int room = WantedRoom(length, kRoomToRoam);
  Plan plan;
  int best = std::numeric_limits<int>::min();
  for (const Way& way : ways) {
    foresight_.Begin(ground_, advance_, length);
    foresight_.Walk(way.node);
    const int last = foresight_.Last(wanted, kTriesFromStep);
    int points = kLasting * last + kRoomy * Room(way.node, room);
    for (const Ground::Node next : ground_.Around(way.node)) {
      if (next == Ground::kNowhere || !ground_.IsFree(next, 2)) points += kNarrow;
    }
    if (!advance_.IsOurs(way.node, 2)) points += kContested;
    if (way.dir == heading) points += kStraight;
    if (points <= best) continue;
    best = points;
    plan = {way.dir, false, last >= wanted};
  }
  return plan;
}

/// Places that can be reached from here before others, as far as they are wanted.
int CleverDriver::Room(Ground::Node from, int wanted) {
  room_.Begin(ground_, advance_);
  room_.Enter(from, 1);
  while (room_.Visited() < wanted && room_.Next()) {
  }
  return room_.Visited();
}

/// Every step looks deadly: into the body that may be gone first, or else into the edge. Before its
/// first step a snake waits for room instead.
Dir CleverDriver::LeastBad(const SnakeRec& self) const {
  if (self.Dir == Dir::kNone) return Dir::kNone;
  Dir best = self.Dir;
  int soonest = std::numeric_limits<int>::max();
  for (const Dir dir : kDirections) {
    if (dir == Reverse(self.Dir)) continue;
    const Ground::Node node = ground_.FirstStep(dir);
    const int free = node == Ground::kNowhere ? Ground::kNever - 1 : ground_.SoonestFree(node);
    if (free >= soonest) continue;
    soonest = free;
    best = dir;
  }
  return best;
}

}  // namespace coilrun
