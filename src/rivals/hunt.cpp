#include "rivals/hunt.h"

#include <algorithm>
#include <cstdlib>

#include "model/snakes_in_play.h"

namespace coilrun {
namespace {

/// The furthest that prey can be away, in pixels along the axes.
constexpr int kNear = 16 * kCell;
/// How many of the snake's own steps are followed.
constexpr int kFarthest = 16;
/// How many places prey needs beyond its length, and how many it needs at most.
constexpr int kSpare = 6;
constexpr int kMostNeeded = 60;
/// How many places it counts for to shut prey in.
constexpr int kShutIn = 20;

int Distance(Point a, Point b) {
  return std::abs(a.x - b.x) + std::abs(a.y - b.y);
}

/// The place nearest to `theirs` that lies whole steps away from `own`.
int Nearest(int own, int theirs) {
  const int off = theirs - own;
  return own + (off + (off < 0 ? -kCell / 2 : kCell / 2)) / kCell * kCell;
}

}  // namespace

void Hunt::Look(const Ground& ground, const State& state, int snake) {
  ground_ = &ground;
  count_ = 0;
  own_.fill(kNever);
  const Point head = state.Snakes(snake).Head();
  for (int s = 1; s <= SnakesInPlay(state) && count_ < kMost; ++s) {
    const SnakeRec& other = state.Snakes(s);
    if (s == snake || other.Immortal || Distance(head, other.Head()) > kNear) continue;
    Prey prey{ground.At({Nearest(head.x, other.X), Nearest(head.y, other.Y)}),
              std::min(other.Length + kSpare, kMostNeeded)};
    if (prey.at == Ground::kNowhere) continue;
    prey.room = Room(prey);
    if (!IsShutIn(prey, prey.room)) prey_[static_cast<std::size_t>(count_++)] = prey;
  }
}

bool Hunt::IsShutIn(const Prey& prey, int room) {
  return 2 * room < prey.needs;
}

int Hunt::Taken(Ground::Node step) {
  if (count_ == 0) return 0;
  SpreadOwn(step);
  int taken = 0;
  for (int i = 0; i < count_; ++i) {
    const Prey& prey = prey_[static_cast<std::size_t>(i)];
    const int left = std::min(Room(prey), prey.room);
    taken += prey.room - left;
    if (IsShutIn(prey, left)) taken += kShutIn;
  }
  return taken;
}

void Hunt::SpreadOwn(Ground::Node from) {
  own_.fill(kNever);
  queued_ = 0;
  Enter(own_, from, 1);
  for (std::size_t taken = 0; taken < queued_; ++taken) {
    const int step = StepAt(own_, queue_[taken]) + 1;
    if (step > kFarthest) return;
    for (const Ground::Node next : ground_->Around(queue_[taken])) {
      if (next == Ground::kNowhere || StepAt(own_, next) != kNever) continue;
      if (ground_->IsFree(next, step)) Enter(own_, next, step);
    }
  }
}

/// How many places prey reaches before the snake, up to what it needs. Others may step just before
/// us: what is free for them one step later counts as free.
int Hunt::Room(const Prey& prey) {
  theirs_.fill(kNever);
  queued_ = 0;
  Enter(theirs_, prey.at, 0);
  for (std::size_t taken = 0; taken < queued_; ++taken) {
    const int step = StepAt(theirs_, queue_[taken]) + 1;
    if (static_cast<int>(queued_) > prey.needs || step == kNever) break;
    for (const Ground::Node next : ground_->Around(queue_[taken])) {
      if (next == Ground::kNowhere || StepAt(theirs_, next) != kNever) continue;
      if (ground_->SoonestFree(next) > step + 1 || StepAt(own_, next) < step) continue;
      Enter(theirs_, next, step);
    }
  }
  return std::min(static_cast<int>(queued_) - 1, prey.needs);
}

void Hunt::Enter(Steps& steps, Ground::Node node, int step) {
  steps[static_cast<std::size_t>(node)] = static_cast<std::uint8_t>(step);
  queue_[queued_++] = static_cast<std::int16_t>(node);
}

}  // namespace coilrun
