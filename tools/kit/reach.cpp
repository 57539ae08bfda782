#include "kit/reach.h"

#include <algorithm>
#include <array>
#include <functional>
#include <queue>

#include "game/walls.h"

namespace coilrun {
namespace {

constexpr std::array kDirections = {Dir::kForw, Dir::kBack, Dir::kLeft, Dir::kRight};

/// What a head touches, as bits.
constexpr std::uint8_t kBlowable = 1;
constexpr std::uint8_t kHard = 2;

/// How a head arrived at its place, as a bit; `Dir::kNone` stands for the start.
constexpr std::uint8_t ArrivalBit(Dir dir) {
  return static_cast<std::uint8_t>(1U << static_cast<unsigned>(dir));
}

struct Arrival {
  Point place;
  Dir dir;
};

}  // namespace

bool PixelMarks::AnyTouches(const Reach& reach, Point thing) const {
  for (int y = thing.y + reach.minY; y <= thing.y + reach.maxY; ++y) {
    for (int x = thing.x + reach.minX; x <= thing.x + reach.maxX; ++x) {
      if (At({x, y}) != 0) return true;
    }
  }
  return false;
}

bool PixelMarks::Set(Point place, std::uint8_t bits) {
  if (!InField(place)) return false;
  std::uint8_t& mark = marks_[Index(place)];
  const std::uint8_t before = mark;
  mark |= bits;
  any_ = any_ || mark != 0;
  return mark != before;
}

void PixelMarks::Add(const PixelMarks& marks) {
  std::transform(marks_.begin(), marks_.end(), marks.marks_.begin(), marks_.begin(),
                 std::bit_or<std::uint8_t>{});
  any_ = any_ || marks.any_;
}

Ground::Ground(const State& state) : openEdges_(state.level.hasOpenWalls) {
  for (int number = 1; number <= state.numWalls; ++number) {
    if (state.Walls(number).Present) Wall(state.Walls(number).At(), kBlowable);
  }
  if (!state.level.UserItemsUsed) return;
  for (int number = 1; number <= state.numUserItems; ++number) {
    const UserItemRec& item = state.UserItems(number);
    if (IsIndestructible(item)) Wall(item.At(), kHard);
    if (IsDestructible(item) && item.Present) Wall(item.At(), kBlowable);
  }
}

void Ground::Wall(Point wall, std::uint8_t kind) {
  const Reach& reach = kObstacleReach;
  for (int y = wall.y + reach.minY; y <= wall.y + reach.maxY; ++y) {
    for (int x = wall.x + reach.minX; x <= wall.x + reach.maxX; ++x) deadly_.Set({x, y}, kind);
  }
}

bool Ground::IsDeadly(Point head, Force force) const {
  switch (force) {
    case Force::kNone:
      return deadly_.At(head) != 0;
    case Force::kTnt:
      return (deadly_.At(head) & kHard) != 0;
    case Force::kPower:
      break;
  }
  return false;
}

std::optional<Point> Ground::Step(Point from, Dir dir, Force force) const {
  Point to = Stepped(from, dir);
  if (openEdges_ || force == Force::kPower) to = {kAcross.Wrapped(to.x), kDown.Wrapped(to.y)};
  if (!InField(to) || IsDeadly(to, force)) return std::nullopt;
  return to;
}

int Ground::FreeSteps(Point from, Dir dir, int limit) const {
  int steps = 0;
  for (auto place = Step(from, dir); place && steps < limit; place = Step(*place, dir)) ++steps;
  return steps;
}

PixelMarks Ground::PlacesFrom(Point start, Force force) const {
  PixelMarks places;
  std::queue<Arrival> arrivals;
  const auto arrive = [&](Point place, Dir dir) {
    if (places.Set(place, ArrivalBit(dir))) arrivals.push({place, dir});
  };
  if (!IsDeadly(start, force)) arrive(start, Dir::kNone);
  while (!arrivals.empty()) {
    const Arrival from = arrivals.front();
    arrivals.pop();
    for (const Dir dir : kDirections) {
      if (from.dir != Dir::kNone && dir == Reverse(from.dir)) continue;
      if (const auto to = Step(from.place, dir, force)) arrive(*to, dir);
    }
  }
  return places;
}

}  // namespace coilrun
