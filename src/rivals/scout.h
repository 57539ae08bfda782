#pragma once

#include <array>
#include <span>

#include "rivals/advance.h"
#include "rivals/flood.h"
#include "rivals/foresight.h"
#include "rivals/ground.h"

namespace coilrun {

/// How a driver weighs things.
struct Temper {
  int roomForMeal;    ///< places wanted before a meal, per four cells of the body
  int triesFromMeal;  ///< to find a way that lasts, from a meal and from a step
  int triesFromStep;
};

/// Plans the next step of a snake: to what is worth eating, as long as a way leads on from there,
/// otherwise to where there is room. Remembers nothing from one plan to the next.
class Scout {
 public:
  /// A step that can be made now.
  struct Way {
    Dir dir;
    Ground::Node node;
  };
  struct Plan {
    Dir dir = Dir::kNone;
    bool fed = false;   ///< leads to a meal
    bool safe = false;  ///< leads on for long enough
    int points = 0;     ///< of a plan without a meal
    int lasts = 0;      ///< the most steps that it was found to go on for, without a meal
  };

  explicit Scout(const Temper& temper) : temper_(temper) {}

  /// Looks at the field again; false when no step can be made. Must be called before the others.
  bool Look(const State& state, int snake, std::span<const Goal> goals, WallSight walls);
  Plan Feed();
  /// Goes to the nearest goal, whatever comes after it.
  Plan Hurry();
  /// Goes where there is room; `extra` holds more points for each of the ways, in their order.
  Plan Roam(std::span<const int> extra);
  /// Where to go by a plan: where it leads as long as there is a way on, otherwise to the death
  /// that costs the fewest frags. Before its first step a snake without a plan waits.
  Dir Settle(const Plan& plan, const State& state, int snake) const;

  std::span<const Way> Ways() const { return {ways_.data(), wayCount_}; }
  const Ground& Field() const { return ground_; }
  const Advance& Others() const { return advance_; }

 private:
  Dir Die(const SnakeRec& self) const;
  Dir GiveUp(const State& state, const SnakeRec& self, int lasts) const;
  Dir LeastBad() const;
  int PriceOf(const SnakeRec& self, Dir dir) const;
  struct Meal {
    Ground::Node node;
    int step;
    int detour;  ///< steps to it, minus those that it is worth
  };

  void FindWays(const State& state, const SnakeRec& self, WallSight walls);
  std::span<const Meal> Meals();
  void TakePath(const Meal& meal);
  Plan AlongPath(bool safe) const;
  bool IsSafe(const Meal& meal);
  int Points(const Way& way, int last);
  int Room(Ground::Node from, int wanted);

  Temper temper_;
  Dir heading_ = Dir::kNone;
  int length_ = 0;  ///< once the snake's pending growth is paid out
  Ground ground_;
  Advance advance_;
  Flood flood_;
  Flood room_;
  Foresight foresight_;
  std::array<Way, kDirections.size()> ways_{};
  std::size_t wayCount_ = 0;
  static constexpr std::size_t kMeals = 3;
  std::array<Meal, kMeals> meals_{};
  std::array<Ground::Node, Foresight::kMost> path_{};
};

}  // namespace coilrun
