#pragma once

#include "rivals/ground.h"

namespace coilrun {

/// How soon other heads can come to each place: a flood from all of them at once, one place per
/// step.
class Advance {
 public:
  /// Looks at the heads of other snakes that can kill; `ground` is the field as `snake` meets it.
  void Look(const Ground& ground, const State& state, int snake);

  /// True when no other head can be there before `step`.
  bool IsOurs(Ground::Node node, int step) const { return ArrivalAt(node) >= step; }
  /// In how many steps the nearest other head can be there; a large number when none can.
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
