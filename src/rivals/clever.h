#pragma once

#include "game/driver.h"
#include "rivals/appetite.h"
#include "rivals/flood.h"
#include "rivals/ground.h"

namespace coilrun {

/// Finds its way around walls and bodies to what is worth eating, and keeps out of pockets that are
/// smaller than its body. Remembers nothing from one choice to the next.
class CleverDriver final : public Driver {
 public:
  Dir Choose(State& state, int snake) override;

 private:
  /// What a step in one direction leads to.
  struct Prospect {
    Dir dir = Dir::kNone;
    int room = 0;    ///< places that can be reached, as far as they were counted
    int detour = 0;  ///< steps to the meal that pays most, less what it is worth
    int score = 0;
  };

  Prospect BestStep(const State& state, int snake, WallSight walls);
  Prospect Explore(const SnakeRec& self, Dir dir, Ground::Node from);
  Dir LeastBad(const SnakeRec& self);

  Appetite appetite_;
  Ground ground_;
  Flood flood_;
};

}  // namespace coilrun
