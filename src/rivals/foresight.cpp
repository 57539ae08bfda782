#include "rivals/foresight.h"

#include <algorithm>

namespace coilrun {
namespace {

/// For how many steps other heads matter; nobody knows what they do after that.
constexpr int kMindedSteps = 3;
/// No snake steps back to where it was a step ago, however short it is.
constexpr int kNoReverse = 2;
/// The size of a round, within which steps are noted.
constexpr std::uint32_t kRound = 1024;

}  // namespace

void Foresight::Begin(const Ground& ground, const Advance& advance, int length) {
  ground_ = &ground;
  advance_ = &advance;
  length_ = std::max(length, kNoReverse);
  meals_ = 0;
  step_ = 0;
  marked_ = 0;
  round_ += kRound;
  if (round_ == 0) {
    walked_.fill(0);
    round_ = kRound;
  }
}

void Foresight::Walk(Ground::Node node) {
  if (step_ < kMost) Enter(node);
}

void Foresight::Eat() {
  ++length_;
  ++meals_;
}

void Foresight::Enter(Ground::Node node) {
  ++step_;
  at_ = node;
  stages_[static_cast<std::size_t>(step_)].marks = marked_;
  if (ground_->IsPlain()) {
    Cover(node);
  } else {
    ground_->ForOverlaps(ground_->PlaceOf(node), [this](Ground::Node covered) { Cover(covered); });
  }
}

void Foresight::Cover(Ground::Node node) {
  std::uint32_t& walked = walked_[static_cast<std::size_t>(node)];
  marks_[static_cast<std::size_t>(marked_++)] = {node, walked};
  walked = round_ + static_cast<std::uint32_t>(step_);
}

void Foresight::Leave() {
  const int marks = stages_[static_cast<std::size_t>(step_--)].marks;
  while (marked_ > marks) {
    const Mark& mark = marks_[static_cast<std::size_t>(--marked_)];
    walked_[static_cast<std::size_t>(mark.node)] = mark.before;
  }
}

bool Foresight::CanEnter(Ground::Node node, int step) const {
  if (!ground_->IsFree(node, step - meals_)) return false;
  const int arrival = advance_->ArrivalAt(node);
  if (arrival <= kMindedSteps && arrival < step) return false;
  const std::uint32_t walked = walked_[static_cast<std::size_t>(node)];
  return walked < round_ || step - static_cast<int>(walked - round_) > length_;
}

int Foresight::Exits(Ground::Node node, int step) const {
  const auto& around = ground_->Around(node);
  return static_cast<int>(std::count_if(around.begin(), around.end(), [&](Ground::Node next) {
    return next != Ground::kNowhere && CanEnter(next, step);
  }));
}

/// Sorts the places where a way can go on: dead ends first, then those with the most exits.
void Foresight::Spread(Ground::Node node) {
  Stage& stage = stages_[static_cast<std::size_t>(step_)];
  std::array<int, 4> ranks{};
  stage.count = 0;
  for (const Ground::Node next : ground_->Around(node)) {
    if (next == Ground::kNowhere || !CanEnter(next, step_ + 1)) continue;
    const int exits = Exits(next, step_ + 2);
    const int rank = exits == 0 ? 0 : static_cast<int>(kDirections.size()) + 1 - exits;
    auto at = static_cast<std::size_t>(stage.count++);
    for (; at > 0 && ranks[at - 1] > rank; --at) {
      ranks[at] = ranks[at - 1];
      stage.next[at] = stage.next[at - 1];
    }
    ranks[at] = rank;
    stage.next[at] = next;
  }
}

int Foresight::Last(int wanted, int tries) {
  const int first = step_;
  const int goal = std::min(wanted, kMost);
  int last = first;
  Spread(at_);
  while (last < goal && tries > 0) {
    Stage& stage = stages_[static_cast<std::size_t>(step_)];
    if (stage.count == 0) {
      if (step_ == first) break;
      Leave();
      continue;
    }
    --tries;
    const Ground::Node node = stage.next[static_cast<std::size_t>(--stage.count)];
    Enter(node);
    last = std::max(last, step_);
    if (last < goal) Spread(node);
  }
  while (step_ > first) Leave();
  return last;
}

}  // namespace coilrun
