#include "game/ai.h"

#include <algorithm>
#include <cstdlib>

#include "game/game.h"
#include "game/geometry.h"
#include "game/slots.h"

namespace coilrun {
namespace {

/// Targets must be nearer than this.
constexpr int kFarAway = 20000;
/// How many walls AI snakes see, standing or not, however many the level has.
constexpr int kWallsSeen = 200;

/// The coloured item that is the fewest steps away, present or not; (0, 0) if there is none. Among
/// equals the first is taken.
Point NearestTarget(const State& state, Point head) {
  Point nearest;
  int best = kFarAway;
  for (const ItemKind kind : {ItemKind::kYellow, ItemKind::kRed, ItemKind::kBlue}) {
    const ItemList& items = state.Items(kind);
    for (const ItemRec& item : Slots(items.slots, 1, items.count)) {
      const int distance = std::abs(item.X - head.x) + std::abs(item.Y - head.y);
      if (distance >= best) continue;
      best = distance;
      nearest = item.At();
    }
  }
  return nearest;
}

/// Covers the longer of the two distances first; `kNone` at the target itself.
Dir Toward(Point target, Point head) {
  const int dx = std::abs(target.x - head.x);
  const int dy = std::abs(target.y - head.y);
  if (dy < dx) return target.x < head.x ? Dir::kLeft : Dir::kRight;
  if (target.y == head.y) return Dir::kNone;
  return target.y < head.y ? Dir::kForw : Dir::kBack;
}

/// Where a snake turns when `heading` takes it to the edge of the field; otherwise `wanted`.
Dir TurnedAtEdge(Dir wanted, Dir heading, Point head) {
  switch (heading) {
    case Dir::kLeft:
      if (head.x <= 20) return head.y >= 460 ? Dir::kForw : Dir::kBack;
      return wanted;
    case Dir::kRight:
      if (head.x >= 600) return head.y > 20 ? Dir::kForw : Dir::kBack;
      return wanted;
    case Dir::kForw:
      if (head.y <= 20) return head.x <= 20 ? Dir::kRight : Dir::kLeft;
      return wanted;
    case Dir::kBack:
      if (head.y >= 440) return head.x >= 620 ? Dir::kLeft : Dir::kRight;
      return wanted;
    default:
      return wanted;
  }
}

bool HitsSnake(const SnakeRec& other, Point probe) {
  const auto body = Slots(other.Seg, 0, other.Length);
  return Overlap(probe, other.Head()) || Overlap(probe, {other.Tail.X, other.Tail.Y}) ||
         std::any_of(body.begin(), body.end(), [probe](const SegRec& cell) {
           return Overlap(probe, {cell.X, cell.Y});
         });
}

/// True when a wall or another snake stands on `probe`. A snake does not see its own body.
bool Blocked(const State& state, int snake, Point probe) {
  const auto walls = Slots(state.Walls, 1, kWallsSeen);
  if (std::any_of(walls.begin(), walls.end(),
                  [probe](const WallRec& wall) { return Overlap(probe, wall.At()); })) {
    return true;
  }
  for (int k = 1; k <= SnakesInPlay(state); ++k) {
    if (k != snake && HitsSnake(state.Snakes(k), probe)) return true;
  }
  return false;
}

/// Where a snake swerves when an obstacle lies straight ahead.
Dir Swapped(Dir wanted) {
  switch (wanted) {
    case Dir::kLeft:
      return Dir::kForw;
    case Dir::kForw:
      return Dir::kLeft;
    case Dir::kRight:
      return Dir::kBack;
    case Dir::kBack:
      return Dir::kRight;
    default:
      return Dir::kNone;
  }
}

/// Where a snake turns instead of reversing on the spot.
Dir Sidestep(Dir heading, Point target, Point head) {
  if (heading == Dir::kLeft || heading == Dir::kRight) {
    return target.y < head.y ? Dir::kForw : Dir::kBack;
  }
  return target.x < head.x ? Dir::kLeft : Dir::kRight;
}

}  // namespace

Dir AIChoose(State& state, int snake) {
  const SnakeRec& chooser = state.Snakes(snake);
  const Point head = chooser.Head();
  const Dir heading = chooser.Dir;
  const auto blocked = [&](Dir dir) { return Blocked(state, snake, Stepped(head, dir)); };

  const Point target = NearestTarget(state, head);
  state.TargetReached = target == head;
  const Dir wanted = TurnedAtEdge(Toward(target, head), heading, head);
  if (wanted == Dir::kNone) return wanted;
  if (blocked(wanted)) return Swapped(wanted);
  if (!IsDirection(heading) || wanted != Reverse(heading)) return wanted;

  const Dir aside = Sidestep(heading, target, head);
  // Only the way round from "Back" looks ahead once more.
  if (heading == Dir::kBack && blocked(aside)) return Swapped(aside);
  return aside;
}

}  // namespace coilrun
