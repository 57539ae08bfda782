#pragma once

#include "rivals/ground.h"

namespace coilrun {

/// How soon other heads can come to each place: a flood from all of them at once, a place a step.
class Advance {
 public:
  /// Heads of other snakes that can kill are looked at; `ground` is as `snake` meets it.
  void Look(const Ground& ground, const State& state, int snake);

  /// True when no other head can be there before `step`.
  bool IsOurs(Ground::Node node, int step) const { return ArrivalAt(node) >= step; }
  /// Steps in which the nearest other head can be there; large when none can.
  int ArrivalAt(Ground::Node node) const { return arrival_[static_cast<std::size_t>(node)]; }

 private:
  static constexpr std::uint8_t kNever = 255;

  void Spread(const Ground& ground);
  void Enter(Ground::Node node, int step);

  std::array<std::uint8_t, Ground::kNodes> arrival_{};
  std::array<std::int16_t, Ground::kNodes> queue_{};
  std::size_t queued_ = 0;
};

}  // namespace coilrun
