#pragma once

#include "game/driver.h"
#include "rivals/appetite.h"
#include "rivals/hunt.h"
#include "rivals/scout.h"

namespace coilrun {

/// As clever as `CleverDriver`, but plays against the others: takes their room when that does not
/// cost its own, takes atomic power when no way leads on, and gives away no frags that it can keep.
class MasterDriver final : public Driver {
 public:
  Dir Choose(State& state, int snake) override;

 private:
  Scout::Plan Look(const State& state, int snake, WallSight walls);
  Scout::Plan SeekPower(const State& state, int snake);
  bool FindPrey(const State& state, int snake);

  Appetite appetite_;
  Hunt hunt_;
  Scout scout_{{.roomForMeal = 6, .triesFromMeal = 600, .triesFromStep = 1200}};
  std::array<int, kDirections.size()> gains_{};  ///< points for each way
};

}  // namespace coilrun
