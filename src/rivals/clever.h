#pragma once

#include "game/driver.h"
#include "rivals/advance.h"
#include "rivals/appetite.h"
#include "rivals/flood.h"
#include "rivals/foresight.h"
#include "rivals/ground.h"

namespace coilrun {

/// Finds its way around walls and bodies to what is worth eating, as long as it sees a way on from
/// there, and else keeps to where there is room. Remembers nothing from one choice to the next.
class CleverDriver final : public Driver {
 public:
  Dir Choose(State& state, int snake) override;

 private:
  /// A step that can be made now.
  struct Way {
    Dir dir;
    Ground::Node node;
  };
  struct Meal {
    Ground::Node node;
    int step;
    int detour;  ///< steps to it, less those that it is worth
  };
  struct Plan {
    Dir dir = Dir::kNone;
    bool fed = false;   ///< leads to a meal
    bool safe = false;  ///< leads on for long enough
  };

  Plan Look(const State& state, int snake, WallSight walls);
  std::span<const Way> Ways(const State& state, const SnakeRec& self, WallSight walls);
  std::span<const Meal> Meals(std::span<const Way> ways);
  Plan Feed(int length, std::span<const Way> ways);
  bool IsSafe(const Meal& meal, int length);
  Plan Roam(int length, Dir heading, std::span<const Way> ways);
  int Room(Ground::Node from, int wanted);
  Dir LeastBad(const SnakeRec& self) const;

  Appetite appetite_;
  Ground ground_;
  Advance advance_;
  Flood flood_;
  Flood room_;
  Foresight foresight_;
  std::array<Way, kDirections.size()> ways_{};
  static constexpr std::size_t kMeals = 3;
  std::array<Meal, kMeals> meals_{};
  std::array<Ground::Node, Foresight::kMost> path_{};
};

}  // namespace coilrun
