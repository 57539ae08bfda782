#include "rivals/advance.h"

#include <algorithm>

#include "model/snakes_in_play.h"

namespace coilrun {
namespace {

/// How many steps heads are followed: nobody knows where they turn later, and fearing more means
/// starving.
constexpr int kFarthest = 16;

}  // namespace

void Advance::Look(const Ground& ground, const State& state, int snake) {
  arrival_.fill(kNever);
  queued_ = 0;
  for (int s = 1; s <= SnakesInPlay(state); ++s) {
    const SnakeRec& other = state.Snakes(s);
    const int length = other.Length + std::max<int>(other.Grow, 0);
    if (s == snake || length < kFirstDeadlyCell || other.Dir == Dir::kNone) continue;
    ground.ForOverlaps(other.Head(), [this](Ground::Node node) {
      if (ArrivalAt(node) == kNever) Enter(node, 0);
    });
  }
  Spread(ground);
}

/// Others may step just before us: what is free for them one step later counts as free.
void Advance::Spread(const Ground& ground) {
  for (std::size_t taken = 0; taken < queued_; ++taken) {
    const int step = ArrivalAt(queue_[taken]) + 1;
    if (step > kFarthest) return;
    for (const Ground::Node next : ground.Around(queue_[taken])) {
      if (next == Ground::kNowhere || ArrivalAt(next) != kNever) continue;
      if (ground.SoonestFree(next) <= step + 1) Enter(next, step);
    }
  }
}

void Advance::Enter(Ground::Node node, int step) {
  arrival_[static_cast<std::size_t>(node)] = static_cast<std::uint8_t>(step);
  queue_[queued_++] = static_cast<std::int16_t>(node);
}

}  // namespace coilrun
