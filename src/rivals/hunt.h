#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "rivals/ground.h"

namespace coilrun {

/// Who of the others loses room to a step: a snake that has less than its body needs soon dies.
class Hunt {
 public:
  /// Finds the prey near a snake; `ground` is as the snake meets it and must outlive what follows.
  void Look(const Ground& ground, const State& state, int snake);
  /// Places that the prey could reach first, and no longer does when the snake steps here; more
  /// for each that is left with too few to live.
  int Taken(Ground::Node step);

 private:
  struct Prey {
    Ground::Node at = Ground::kNowhere;  ///< the place that is nearest to its head
    int needs = 0;                       ///< places
    int room = 0;                        ///< as it stands, up to what it needs
  };
  static constexpr int kMost = 4;
  static constexpr std::uint8_t kNever = 255;

  /// In which step a place is come to.
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
