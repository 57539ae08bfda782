#pragma once

#include <array>
#include <cstdint>

#include "rivals/advance.h"
#include "rivals/ground.h"

namespace coilrun {

/// Follows a snake ahead with its own body behind it: how long can it live on? Looks for a way that
/// lasts, trying the narrowest places first, because that is how a pocket is filled.
class Foresight {
 public:
  /// The most steps that a way can have, counted from the next one on.
  static constexpr int kMost = 300;

  /// Starts over with a snake of `length`; `ground` and `advance` must outlive the calls that
  /// follow.
  void Begin(const Ground& ground, const Advance& advance, int length);
  /// Makes the snake's next step lead here, whatever may be there.
  void Walk(Ground::Node node);
  /// Makes it eat where it walked last: its tail stays for a step, and it is longer from then on.
  void Eat();
  /// The last step of the longest way found from there; stops at `wanted`, or after `tries` tries.
  int Last(int wanted, int tries);

 private:
  /// The most places that a cell covers: one in its own row, two in each other row of an axis.
  static constexpr int kInAxis = 2 * Axis::kRows - 1;
  static constexpr std::size_t kMarks = std::size_t{kInAxis} * kInAxis * (kMost + 1);

  /// A place on the way, and where the way can go on from there.
  struct Stage {
    int marks = 0;  ///< how many there were before this place
    int count = 0;
    std::array<Ground::Node, 4> next{};  ///< the most promising last
  };
  /// A place that the body covers, and what was noted about it before.
  struct Mark {
    Ground::Node node;
    std::uint32_t before;
  };

  bool CanEnter(Ground::Node node, int step) const;
  int Exits(Ground::Node node, int step) const;
  void Enter(Ground::Node node);
  void Leave();
  void Cover(Ground::Node node);
  void Spread(Ground::Node node);

  const Ground* ground_ = nullptr;
  const Advance* advance_ = nullptr;
  int length_ = 0;
  int meals_ = 0;
  int step_ = 0;
  Ground::Node at_ = Ground::kNowhere;
  std::uint32_t round_ = 0;
  std::array<std::uint32_t, Ground::kNodes> walked_{};  ///< the round, and the step within it
  std::array<Stage, kMost + 1> stages_{};
  std::array<Mark, kMarks> marks_{};
  int marked_ = 0;
};

}  // namespace coilrun
