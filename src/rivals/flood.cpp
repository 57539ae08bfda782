#include "rivals/flood.h"

namespace coilrun {

void Flood::Begin(Ground::Node from, int step) {
  if (++round_ == 0) {
    entered_.fill(0);
    round_ = 1;
  }
  taken_ = 0;
  queued_ = 0;
  entered_[static_cast<std::size_t>(from)] = round_;
  queue_[queued_++] = {from, step};
}

std::optional<Flood::Visit> Flood::Next(Ground& ground) {
  if (taken_ == queued_) return std::nullopt;
  const Visit visit = queue_[taken_++];
  for (const Dir dir : kDirections) {
    const Ground::Node next = ground.Neighbour(visit.node, dir);
    if (next != Ground::kNowhere) Enter(ground, next, visit.step + 1);
  }
  return visit;
}

void Flood::Enter(Ground& ground, Ground::Node node, int step) {
  std::uint16_t& entered = entered_[static_cast<std::size_t>(node)];
  if (entered == round_ || !ground.IsFree(node, step)) return;
  entered = round_;
  queue_[queued_++] = {node, step};
}

}  // namespace coilrun
