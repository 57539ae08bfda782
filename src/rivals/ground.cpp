#include "rivals/ground.h"

#include <algorithm>
#include <cstdlib>

#include "game/slots.h"
#include "game/walls.h"
#include "model/snakes_in_play.h"

namespace coilrun {
namespace {

/// Heads die on a body cell that they share a pixel with.
constexpr Reach kBodyReach{1 - kCell, kCell - 1, 1 - kCell, kCell - 1};
/// Room that an immortal snake is given, and for how many steps.
constexpr Reach kImmortalReach{-60, 60, -60, 60};
constexpr int kImmortalSteps = 5;
/// Steps of other heads that are minded, and how far they lead.
constexpr int kMindedSteps = 3;
constexpr Reach kMindedReach{-kMindedSteps * kCell, kMindedSteps* kCell, -kMindedSteps* kCell,
                             kMindedSteps* kCell};
constexpr std::uint8_t kNotLost = 255;
/// Fractions of a step that paces are compared in.
constexpr int kFine = 256;

/// Steps for which nothing can hurt; a second is left in reserve, for it may have begun.
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
  state_ = &state;
  snake_ = snake;
  head_ = looker.Head();
  goals_ = goals;
  walls_ = walls;
  mindsHeads_ = false;
  immuneSteps_ = ImmuneSteps(state, looker);
  open_ = !state.mode.GodMode && (state.level.hasOpenWalls || looker.Immortal);
  across_.Lay(kAcross, head_.x, open_);
  down_.Lay(kDown, head_.y, open_);
  seen_ = 0;
  freeFrom_.fill(kUnseen);
}

void Ground::MindHeads() {
  mindsHeads_ = true;
  for (int block = 0; block < Axis::kRows * Axis::kRows; ++block) {
    if ((seen_ >> block & 1U) == 0) continue;
    rowAcross_ = &across_.RowAt(block % Axis::kRows);
    rowDown_ = &down_.RowAt(block / Axis::kRows);
    for (int s = 1; s <= SnakesInPlay(*state_); ++s) SeeHead(s);
  }
}

Ground::Node Ground::At(Point place) const {
  const int x = across_.IndexOf(place.x);
  const int y = down_.IndexOf(place.y);
  return x == Axis::kOut || y == Axis::kOut ? kNowhere : y * kStride + x;
}

Point Ground::PlaceOf(Node node) const {
  return {across_.PixelOf(node % kStride), down_.PixelOf(node / kStride)};
}

/// Where a step really leads: through an open edge to the other side.
Point Ground::Onward(Point head, Dir dir) const {
  const Point next = Stepped(head, dir);
  return open_ ? Point{kAcross.Wrapped(next.x), kDown.Wrapped(next.y)} : next;
}

Ground::Node Ground::FirstStep(Dir dir) const {
  return At(Onward(head_, dir));
}

Ground::Node Ground::Neighbour(Node node, Dir dir) const {
  int x = node % kStride;
  int y = node / kStride;
  switch (dir) {
    case Dir::kLeft:
      x = across_.Before(x);
      break;
    case Dir::kRight:
      x = across_.After(x);
      break;
    case Dir::kForw:
      y = down_.Before(y);
      break;
    case Dir::kBack:
      y = down_.After(y);
      break;
    default:
      return kNowhere;
  }
  return x == Axis::kOut || y == Axis::kOut ? kNowhere : y * kStride + x;
}

int Ground::FreeFrom(Node node) {
  const std::uint8_t& from = freeFrom_[static_cast<std::size_t>(node)];
  if (from == kUnseen) SeeNode(node);
  return from;
}

int Ground::WorthOf(Node node) {
  if (freeFrom_[static_cast<std::size_t>(node)] == kUnseen) SeeNode(node);
  return worth_[static_cast<std::size_t>(node)];
}

void Ground::SeeNode(Node node) {
  See(down_.RowOf(node / kStride) * Axis::kRows + across_.RowOf(node % kStride));
}

void Ground::See(int block) {
  seen_ |= 1U << block;
  rowAcross_ = &across_.RowAt(block % Axis::kRows);
  rowDown_ = &down_.RowAt(block / Axis::kRows);
  for (int y = rowDown_->first; y < rowDown_->first + rowDown_->count; ++y) {
    const auto from = static_cast<std::size_t>(y * kStride + rowAcross_->first);
    std::fill_n(freeFrom_.begin() + from, rowAcross_->count, std::uint8_t{0});
    std::fill_n(worth_.begin() + from, rowAcross_->count, std::uint8_t{0});
    std::fill_n(lostFrom_.begin() + from, rowAcross_->count, kNotLost);
  }
  SeeGoals();
  SeeWalls();
  SeeUserWalls();
  SeeSnakes();
}

template <typename Visit>
void Ground::ForPlaces(Point thing, const Reach& reach, const Visit& visit) const {
  const Axis::Run x = Axis::Between(*rowAcross_, thing.x + reach.minX, thing.x + reach.maxX);
  if (x.last < x.first) return;
  const Axis::Run y = Axis::Between(*rowDown_, thing.y + reach.minY, thing.y + reach.maxY);
  for (int row = y.first; row <= y.last; ++row) {
    const int line = (rowDown_->first + row) * kStride + rowAcross_->first;
    for (int column = x.first; column <= x.last; ++column) visit(line + column);
  }
}

void Ground::Put(Layer& layer, Point thing, const Reach& reach, int value) {
  ForPlaces(thing, reach, [&layer, value](Node node) {
    std::uint8_t& place = layer[static_cast<std::size_t>(node)];
    place = std::max(place, static_cast<std::uint8_t>(value));
  });
}

void Ground::SeeWalls() {
  if (walls_ == WallSight::kIgnored) return;
  for (const WallRec& wall : Slots(state_->Walls, 1, state_->numWalls)) {
    if (wall.Present) Put(freeFrom_, wall.At(), kObstacleReach, kNever);
  }
}

void Ground::SeeUserWalls() {
  if (!state_->level.UserItemsUsed) return;
  for (const UserItemRec& item : Slots(state_->UserItems, 1, state_->numUserItems)) {
    if (!item.Present) continue;
    const bool stands =
        IsIndestructible(item) || (IsDestructible(item) && walls_ == WallSight::kStand);
    if (stands) Put(freeFrom_, item.At(), kObstacleReach, kNever);
  }
}

void Ground::SeeSnakes() {
  for (int s = 1; s <= SnakesInPlay(*state_); ++s) {
    SeeBody(s);
    if (s == snake_) continue;
    if (mindsHeads_) SeeHead(s);
    if (state_->Snakes(s).Immortal) SeeImmortal(state_->Snakes(s));
  }
}

/// A cell is gone when its snake has made as many steps as there are cells behind it. Others may
/// have made theirs just before or make them just after, so they are given one step more.
void Ground::SeeBody(int snake) {
  const SnakeRec& body = state_->Snakes(snake);
  const int length = body.Length + std::max<int>(body.Grow, 0);
  if (length < kFirstDeadlyCell) return;
  const bool stands = Stands(*state_, body);
  const bool own = snake == snake_;
  const int pace =
      own ? kFine : kFine * body.Interval / std::max<int>(state_->Snakes(snake_).Interval, 1);
  const auto gone = [&](int cell) {
    if (stands) return kLatest;
    const int steps = ((length + 1 - cell) * pace + kFine - 1) / kFine;
    return std::clamp(own ? steps : steps + 1, 1, kLatest);
  };
  int cell = 0;
  Put(freeFrom_, body.Head(), kBodyReach, gone(0));
  for (const SegRec& seg : Slots(body.Seg, 1, body.Length)) {
    Put(freeFrom_, {seg.X, seg.Y}, kBodyReach, gone(++cell));
  }
}

void Ground::SeeImmortal(const SnakeRec& other) {
  Put(freeFrom_, other.Head(), kImmortalReach, kImmortalSteps);
}

/// Where a head goes its body follows: what it can reach first is lost, as far as it is minded.
void Ground::SeeHead(int snake) {
  const SnakeRec& other = state_->Snakes(snake);
  const int length = other.Length + std::max<int>(other.Grow, 0);
  if (snake == snake_ || length < kFirstDeadlyCell || Stands(*state_, other)) return;
  const Point head = other.Head();
  ForPlaces(head, kMindedReach, [this, head](Node node) {
    const Point place = PlaceOf(node);
    const int distance = std::abs(place.x - head.x) + std::abs(place.y - head.y);
    if (distance > kMindedSteps * kCell) return;
    std::uint8_t& lost = lostFrom_[static_cast<std::size_t>(node)];
    lost = std::min(lost, static_cast<std::uint8_t>((distance + kCell - 1) / kCell));
  });
}

void Ground::SeeGoals() {
  for (const Goal& goal : goals_) Put(worth_, goal.at, goal.reach, goal.worth);
}

}  // namespace coilrun
