#pragma once

#include "game/driver.h"
#include "rivals/appetite.h"
#include "rivals/scout.h"

namespace coilrun {

/// Goes to eat where a way leads on, keeps to where there is room, and blows up walls with TNT when
/// that leads further.
class CleverDriver final : public Driver {
 public:
  Dir Choose(State& state, int snake) override;

 private:
  Scout::Plan Look(const State& state, int snake, WallSight walls);

  Appetite appetite_;
  Scout scout_{{.roomForMeal = 6, .triesFromMeal = 150, .triesFromStep = 300}};
};

}  // namespace coilrun
