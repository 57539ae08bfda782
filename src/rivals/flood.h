#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "rivals/advance.h"
#include "rivals/ground.h"

namespace coilrun {

/// Spreads a step at a time over the places that a snake comes to before others, the nearest first:
/// how many there are, and the way to each.
class Flood {
 public:
  struct Visit {
    Ground::Node node;
    int step;  ///< in which the snake can be there first
  };

  /// Begins anew; both must outlive the questions that follow.
  void Begin(const Ground& ground, const Advance& advance);
  /// A place that the snake comes to in `step`, to spread from.
  void Enter(Ground::Node node, int step) { Enter(node, step, Ground::kNowhere); }
  /// The next place; nothing when all that can be reached has been visited.
  std::optional<Visit> Next();

  int Visited() const { return static_cast<int>(taken_); }
  /// The place from which one was reached; `kNowhere` for those to spread from.
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
