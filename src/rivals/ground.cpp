#include "rivals/ground.h"

#include <algorithm>

#include "game/slots.h"
#include "game/walls.h"
#include "model/snakes_in_play.h"

namespace coilrun {
namespace {

/// How much room an immortal snake is given, and for how many steps.
constexpr Reach kImmortalReach{-60, 60, -60, 60};
constexpr int kImmortalSteps = 5;
/// The most steps for which a body lies somewhere; nothing is planned beyond them.
constexpr int kLatest = 253;
/// The fractions of a step in which paces are compared.
constexpr int kFine = 256;
/// When another snake eats, its body stays in place for a step. This many meals are allowed for,
/// and one more in every `kStepsAMeal` steps.
constexpr int kMealsAllowed = 4;
constexpr int kStepsAMeal = 16;

/// For how many steps nothing can hurt; the last second is not counted, since it may be under way.
int ImmuneSteps(const State& state, const SnakeRec& snake) {
  constexpr int kAlways = 1 << 20;
  if (state.mode.GodMode) return kAlways;
  if (!snake.Immortal) return 0;
  return std::max(snake.ImmortalSecs - 1, 0) * 1000 / std::max<int>(snake.Interval, 1);
}

bool Stands(const State& state, const SnakeRec& snake) {
  return snake.Dir == Dir::kNone || state.shell.WaitingForStart;
}

}  // namespace

void Ground::Look(const State& state, int snake, std::span<const Goal> goals, WallSight walls) {
  const SnakeRec& looker = state.Snakes(snake);
  head_ = looker.Head();
  walls_ = walls;
  immuneSteps_ = ImmuneSteps(state, looker);
  open_ = !state.mode.GodMode && (state.level.hasOpenWalls || looker.Immortal);
  Lay();
  Clear();
  SeeGoals(goals);
  SeeWalls(state);
  SeeUserWalls(state);
  SeeSnakes(state, snake);
}

/// Most looks find the same axes as the previous one, and so the same ways between places.
void Ground::Lay() {
  const Axis across = across_;
  const Axis down = down_;
  across_.Lay(kAcross, head_.x, open_);
  down_.Lay(kDown, head_.y, open_);
  if (across_ == across && down_ == down) return;
  const auto node = [this](int x, int y) {
    const bool out = x == Axis::kOut || y == Axis::kOut;
    return static_cast<std::int16_t>(out ? kNowhere : y * across_.Count() + x);
  };
  std::size_t at = 0;
  for (int y = 0; y < down_.Count(); ++y) {
    for (int x = 0; x < across_.Count(); ++x) {
      around_[at++] = {node(x, down_.Before(y)), node(x, down_.After(y)),
                       node(across_.Before(x), y), node(across_.After(x), y)};
    }
  }
}

void Ground::Clear() {
  const int count = across_.Count() * down_.Count();
  for (Layer* const layer : {&freeFrom_, &soonest_, &worth_}) {
    std::fill_n(layer->begin(), count, std::uint8_t{0});
  }
}

Ground::Node Ground::At(Point place) const {
  const int x = across_.IndexOf(place.x);
  const int y = down_.IndexOf(place.y);
  return x == Axis::kOut || y == Axis::kOut ? kNowhere : y * across_.Count() + x;
}

Point Ground::PlaceOf(Node node) const {
  return {across_.PixelOf(node % across_.Count()), down_.PixelOf(node / across_.Count())};
}

/// Where a step really leads: through an open edge to the other side.
Point Ground::Onward(Point head, Dir dir) const {
  const Point next = Stepped(head, dir);
  return open_ ? Point{kAcross.Wrapped(next.x), kDown.Wrapped(next.y)} : next;
}

Ground::Node Ground::FirstStep(Dir dir) const {
  return At(Onward(head_, dir));
}

void Ground::Put(Layer& layer, Point thing, const Reach& reach, int value) {
  ForPlaces(thing, reach, [&layer, value](Node node) {
    std::uint8_t& place = layer[Index(node)];
    place = std::max(place, static_cast<std::uint8_t>(value));
  });
}

void Ground::Block(Point thing, const Reach& reach, int soonest, int surely) {
  ForPlaces(thing, reach, [this, soonest, surely](Node node) {
    std::uint8_t& free = freeFrom_[Index(node)];
    std::uint8_t& soon = soonest_[Index(node)];
    free = std::max(free, static_cast<std::uint8_t>(surely));
    soon = std::max(soon, static_cast<std::uint8_t>(soonest));
  });
}

void Ground::SeeWalls(const State& state) {
  if (walls_ == WallSight::kIgnored) return;
  for (const WallRec& wall : Slots(state.Walls, 1, state.numWalls)) {
    if (wall.Present) Block(wall.At(), kObstacleReach, kNever, kNever);
  }
}

void Ground::SeeUserWalls(const State& state) {
  if (!state.level.UserItemsUsed) return;
  for (const UserItemRec& item : Slots(state.UserItems, 1, state.numUserItems)) {
    if (!item.Present) continue;
    const bool stands =
        IsIndestructible(item) || (IsDestructible(item) && walls_ == WallSight::kStand);
    if (stands) Block(item.At(), kObstacleReach, kNever, kNever);
  }
}

void Ground::SeeSnakes(const State& state, int snake) {
  for (int s = 1; s <= SnakesInPlay(state); ++s) {
    SeeBody(state, s, snake);
    if (s == snake || !state.Snakes(s).Immortal) continue;
    Block(state.Snakes(s).Head(), kImmortalReach, kImmortalSteps, kImmortalSteps);
  }
}

/// A cell is gone when its snake has made as many steps as there are cells behind it.
void Ground::SeeBody(const State& state, int snake, int looker) {
  const SnakeRec& body = state.Snakes(snake);
  const int length = body.Length + std::max<int>(body.Grow, 0);
  if (length < kFirstDeadlyCell) return;
  const bool stands = Stands(state, body);
  const bool own = snake == looker;
  const int pace =
      own ? kFine : kFine * body.Interval / std::max<int>(state.Snakes(looker).Interval, 1);
  const auto block = [&](int cell, Point at) {
    const int steps = ((length + 1 - cell) * pace + kFine - 1) / kFine;
    const int soonest = stands ? kLatest : std::clamp(steps, 1, kLatest);
    const int longest = own ? soonest : soonest + kMealsAllowed + soonest / kStepsAMeal;
    Block(at, kBodyReach, soonest, std::min(longest, kLatest));
  };
  block(0, body.Head());
  int cell = 0;
  for (const SegRec& seg : Slots(body.Seg, 1, body.Length)) block(++cell, {seg.X, seg.Y});
}

void Ground::SeeGoals(std::span<const Goal> goals) {
  for (const Goal& goal : goals) Put(worth_, goal.at, goal.reach, goal.worth);
}

}  // namespace coilrun
