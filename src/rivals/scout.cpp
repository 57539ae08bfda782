#include "rivals/scout.h"

#include <algorithm>
#include <limits>

#include "game/slots.h"
#include "game/walls.h"

namespace coilrun {
namespace {

/// The most that a meal is worth: nothing is looked for further than this beyond the best one
/// found.
constexpr int kBestWorth = 8;
/// The most steps to a meal.
constexpr int kFarthestMeal = 150;
/// A way that lasts this many steps longer than the body can go on behind its own tail.
constexpr int kSpareSteps = 4;
constexpr int kLongestWay = 100;
/// How many places are wanted per four cells of the body without a meal, and how many more on top.
constexpr int kRoomToRoam = 8;
constexpr int kSpareRoom = 10;
/// The points of a step: for each further step, each place of room, each neighbour that is not
/// free, another head that can be there, and going straight on.
constexpr int kLasting = 100;
constexpr int kRoomy = 300;
constexpr int kNarrow = -500;
constexpr int kContested = -600;
constexpr int kStraight = 1;

/// How many walls that TNT can blow up touch a place.
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

/// The length of a snake once its pending growth is paid out.
int FullLength(const SnakeRec& snake) {
  return std::min(snake.Length + std::max<int>(snake.Grow, 0), kMaxLength);
}

/// A snake that can go on for no more than this many steps ends at the next wall or edge.
constexpr int kPatienceWithWall = 40;

/// What a step into death costs. Walls and edges cost nothing, another snake's body gives it a
/// frag, and the snake's own body costs it one.
enum Price : int { kHope, kWall, kOther, kOwn };

int WantedRoom(int length, int quarters) {
  return quarters * length / 4 + kSpareRoom;
}

}  // namespace

bool Scout::Look(const State& state, int snake, std::span<const Goal> goals, WallSight walls) {
  const SnakeRec& self = state.Snakes(snake);
  heading_ = self.Dir;
  length_ = FullLength(self);
  ground_.Look(state, snake, goals, walls);
  FindWays(state, self, walls);
  if (wayCount_ == 0) return false;
  advance_.Look(ground_, state, snake);
  return true;
}

void Scout::FindWays(const State& state, const SnakeRec& self, WallSight walls) {
  wayCount_ = 0;
  for (const Dir dir : kDirections) {
    const Ground::Node node = ground_.FirstStep(dir);
    if (node == Ground::kNowhere || dir == Reverse(heading_) || !ground_.IsFree(node, 1)) continue;
    const bool stands = walls == WallSight::kIgnored &&
                        BlowableAt(state, ground_.PlaceOf(node)) > kBlastsPerCharge * self.TNT;
    if (!stands) ways_[wayCount_++] = {dir, node};
  }
}

Scout::Plan Scout::Feed() {
  for (const Meal& meal : Meals()) {
    TakePath(meal);
    if (IsSafe(meal)) return AlongPath(true);
  }
  return {};
}

Scout::Plan Scout::Hurry() {
  const std::span<const Meal> meals = Meals();
  if (meals.empty()) return {};
  TakePath(meals.front());
  return AlongPath(false);
}

Scout::Plan Scout::AlongPath(bool safe) const {
  const auto ways = Ways();
  const auto first = std::find_if(ways.begin(), ways.end(),
                                  [this](const Way& way) { return way.node == path_[0]; });
  return {first->dir, true, safe};
}

void Scout::TakePath(const Meal& meal) {
  Ground::Node node = meal.node;
  for (auto i = static_cast<std::size_t>(meal.step); i > 0; --i) {
    path_[i - 1] = node;
    node = flood_.Before(node);
  }
}

/// The meals that this snake reaches before others, the best first.
std::span<const Scout::Meal> Scout::Meals() {
  flood_.Begin(ground_, advance_);
  for (const Way& way : Ways()) {
    if (advance_.IsOurs(way.node, 1)) flood_.Enter(way.node, 1);
  }
  const auto byDetour = [](const Meal& a, const Meal& b) { return a.detour < b.detour; };
  std::size_t count = 0;
  int best = kFarthestMeal;
  while (const auto visit = flood_.Next()) {
    if (count == kMeals || visit->step > std::min(best + kBestWorth, kFarthestMeal)) break;
    const int worth = ground_.WorthOf(visit->node);
    if (worth == 0) continue;
    const Meal meal{visit->node, visit->step, visit->step - worth};
    Meal* const end = meals_.data() + count++;
    Meal* const place = std::upper_bound(meals_.data(), end, meal, byDetour);
    std::move_backward(place, end, end + 1);
    *place = meal;
    best = std::min(best, meal.detour);
  }
  return std::span(meals_).first(count);
}

/// True when the path leads to the meal and on from there.
bool Scout::IsSafe(const Meal& meal) {
  const int room = WantedRoom(length_ + 1, temper_.roomForMeal);
  if (Room(path_[0], room) < room) return false;
  foresight_.Begin(ground_, advance_, length_);
  for (int i = 0; i < meal.step; ++i) foresight_.Walk(path_[static_cast<std::size_t>(i)]);
  foresight_.Eat();
  const int wanted = std::min(meal.step + length_ + 1 + kSpareSteps,
                              std::max(meal.step + kSpareSteps, kLongestWay));
  return foresight_.Last(wanted, temper_.triesFromMeal) >= wanted;
}

Scout::Plan Scout::Roam(std::span<const int> extra) {
  const int wanted = std::min(length_ + kSpareSteps, kLongestWay);
  Plan plan{.points = std::numeric_limits<int>::min()};
  for (std::size_t i = 0; i < wayCount_; ++i) {
    const Way& way = ways_[i];
    foresight_.Begin(ground_, advance_, length_);
    foresight_.Walk(way.node);
    const int last = foresight_.Last(wanted, temper_.triesFromStep);
    const int points = Points(way, last) + (extra.empty() ? 0 : extra[i]);
    if (points > plan.points) plan = {way.dir, false, last >= wanted, points, last};
  }
  return plan;
}

int Scout::Points(const Way& way, int last) {
  const int room = Room(way.node, WantedRoom(length_, kRoomToRoam));
  int points = kLasting * last + kRoomy * room;
  for (const Ground::Node next : ground_.Around(way.node)) {
    if (next == Ground::kNowhere || !ground_.IsFree(next, 2)) points += kNarrow;
  }
  if (!advance_.IsOurs(way.node, 2)) points += kContested;
  if (way.dir == heading_) points += kStraight;
  return points;
}

/// How many places can be reached from here before others, counted up to `wanted`.
int Scout::Room(Ground::Node from, int wanted) {
  room_.Begin(ground_, advance_);
  room_.Enter(from, 1);
  while (room_.Visited() < wanted && room_.Next()) {
  }
  return room_.Visited();
}

Dir Scout::LeastBad() const {
  if (heading_ == Dir::kNone) return Dir::kNone;
  Dir best = heading_;
  int soonest = std::numeric_limits<int>::max();
  for (const Dir dir : kDirections) {
    if (dir == Reverse(heading_)) continue;
    const Ground::Node node = ground_.FirstStep(dir);
    const int free = node == Ground::kNowhere ? Ground::kNever - 1 : ground_.SoonestFree(node);
    if (free >= soonest) continue;
    soonest = free;
    best = dir;
  }
  return best;
}

Dir Scout::Settle(const Plan& plan, const State& state, int snake) const {
  const SnakeRec& self = state.Snakes(snake);
  if (plan.dir == Dir::kNone) return Die(self);
  if (plan.fed || plan.safe || !IsMultiplayer(state.mode.GameMode)) return plan.dir;
  const Dir end = GiveUp(state, self, plan.lasts);
  return end != Dir::kNone ? end : plan.dir;
}

/// For when every step looks deadly: where there is no hope, chooses the death that costs the
/// fewest frags.
Dir Scout::Die(const SnakeRec& self) const {
  Dir best = LeastBad();
  if (best == Dir::kNone) return best;
  for (const Dir dir : kDirections) {
    if (dir != Reverse(self.Dir) && PriceOf(self, dir) < PriceOf(self, best)) best = dir;
  }
  return best;
}

/// A step into a wall, the edge or, at the very end, another snake, for when there is no way on but
/// for `lasts` steps; `kNone` when there is none.
Dir Scout::GiveUp(const State& state, const SnakeRec& self, int lasts) const {
  const int patienceWithOther = state.level.hasOpenWalls ? 1 : 4;
  Dir best = Dir::kNone;
  int least = kOwn;
  for (const Dir dir : kDirections) {
    const int price = PriceOf(self, dir);
    const int patience = price == kWall ? kPatienceWithWall : patienceWithOther;
    if (lasts > patience) continue;
    if (dir == Reverse(self.Dir) || price == kHope || price >= least) continue;
    best = dir;
    least = price;
  }
  return best;
}

int Scout::PriceOf(const SnakeRec& self, Dir dir) const {
  const Ground::Node node = ground_.FirstStep(dir);
  if (node == Ground::kNowhere) return kWall;
  if (ground_.SoonestFree(node) <= 1) return kHope;
  const Point place = ground_.PlaceOf(node);
  const auto body = Slots(self.Seg, 1, self.Length);
  const bool own = std::any_of(body.begin(), body.end(), [place](const SegRec& seg) {
    return Overlap(place, {seg.X, seg.Y});
  });
  if (own) return kOwn;
  return ground_.SoonestFree(node) == Ground::kNever ? kWall : kOther;
}

}  // namespace coilrun
