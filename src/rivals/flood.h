#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "rivals/advance.h"
#include "rivals/ground.h"

namespace coilrun {

/// Spreads step by step over the places that a snake reaches before others, the nearest first:
/// tells how many there are, and the way to each.
class Flood {
 public:
  struct Visit {
    Ground::Node node;
    int step;  ///< the first in which the snake can be there
  };

  /// Starts over; both must outlive the calls that follow.
  void Begin(const Ground& ground, const Advance& advance);
  /// Adds a place to spread from, which the snake reaches in `step`.
  void Enter(Ground::Node node, int step) { Enter(node, step, Ground::kNowhere); }
  /// The next place; nothing when everything in reach has been visited.
  std::optional<Visit> Next();

  int Visited() const { return static_cast<int>(taken_); }
  /// The place from which this one was reached; `kNowhere` for those that were added.
  Ground::Node Before(Ground::Node node) const { return before_[static_cast<std::size_t>(node)]; }

 private:
  void Enter(Ground::Node node, int step, Ground::Node before);

  const Ground* ground_ = nullptr;
  const Advance* advance_ = nullptr;
  std::array<Visit, Ground::kNodes> queue_{};
  std::size_t taken_ = 0;
  std::size_t queued_ = 0;
  std::array<std::int16_t, Ground::kNodes> before_{};
  std::array<std::uint16_t, Ground::kNodes> entered_{};
  std::uint16_t round_ = 0;
};

}  // namespace coilrun
