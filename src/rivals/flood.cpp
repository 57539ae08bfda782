#include "rivals/flood.h"

namespace coilrun {

void Flood::Begin(const Ground& ground, const Advance& advance) {
  ground_ = &ground;
  advance_ = &advance;
  if (++round_ == 0) {
    entered_.fill(0);
    round_ = 1;
  }
  taken_ = 0;
  queued_ = 0;
}

void Flood::Enter(Ground::Node node, int step, Ground::Node before) {
  const auto index = static_cast<std::size_t>(node);
  if (entered_[index] == round_) return;
  entered_[index] = round_;
  before_[index] = static_cast<std::int16_t>(before);
  queue_[queued_++] = {node, step};
}

std::optional<Flood::Visit> Flood::Next() {
  if (taken_ == queued_) return std::nullopt;
  const Visit visit = queue_[taken_++];
  const int step = visit.step + 1;
  for (const Ground::Node next : ground_->Around(visit.node)) {
    if (next == Ground::kNowhere || !ground_->IsFree(next, step)) continue;
    if (advance_->IsOurs(next, step)) Enter(next, step, visit.node);
  }
  return visit;
}

}  // namespace coilrun
