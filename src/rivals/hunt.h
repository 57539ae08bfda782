#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "rivals/ground.h"

namespace coilrun {

/// Which of the others lose room to a step: a snake with less room than its body needs dies soon.
class Hunt {
 public:
  /// Finds the prey near a snake; `ground` is the field as the snake meets it, and must outlive the
  /// calls that follow.
  void Look(const Ground& ground, const State& state, int snake);
  /// How many places the prey would reach first, but not once the snake steps here; more for each
  /// snake that is left with too few to live.
  int Taken(Ground::Node step);

 private:
  struct Prey {
    Ground::Node at = Ground::kNowhere;  ///< the place that is nearest to its head
    int needs = 0;                       ///< in places
    int room = 0;                        ///< that it has now, up to what it needs
  };
  static constexpr int kMost = 4;
  static constexpr std::uint8_t kNever = 255;

  /// The step in which each place is reached.
  using Steps = std::array<std::uint8_t, Ground::kNodes>;

  static bool IsShutIn(const Prey& prey, int room);
  static int StepAt(const Steps& steps, Ground::Node node) {
    return steps[static_cast<std::size_t>(node)];
  }
  void SpreadOwn(Ground::Node from);
  int Room(const Prey& prey);
  void Enter(Steps& steps, Ground::Node node, int step);

  const Ground* ground_ = nullptr;
  std::array<Prey, kMost> prey_{};
  int count_ = 0;
  Steps own_{};
  Steps theirs_{};
  std::array<std::int16_t, Ground::kNodes> queue_{};
  std::size_t queued_ = 0;
};

}  // namespace coilrun
