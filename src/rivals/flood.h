#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "rivals/ground.h"

namespace coilrun {

/// Spreads over the ground from one place, a step at a time, the nearest places first: how many
/// places can be reached, and in how many steps.
class Flood {
 public:
  struct Visit {
    Ground::Node node;
    int step;  ///< in which the snake can be there first
  };

  /// Begins anew at a place that the snake reaches in `step`.
  void Begin(Ground::Node from, int step);
  /// The next place; nothing when all that can be reached has been visited.
  std::optional<Visit> Next(Ground& ground);

  int Visited() const { return static_cast<int>(taken_); }

 private:
  void Enter(Ground& ground, Ground::Node node, int step);

  std::array<Visit, Ground::kNodes> queue_;
  std::size_t taken_ = 0;
  std::size_t queued_ = 0;
  std::array<std::uint16_t, Ground::kNodes> entered_{};
  std::uint16_t round_ = 0;
};

}  // namespace coilrun
