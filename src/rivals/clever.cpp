#include "rivals/clever.h"

namespace coilrun {

Dir CleverDriver::Choose(State& state, int snake) {
  Scout::Plan plan = Look(state, snake, WallSight::kStand);
  if (state.Snakes(snake).TNT > 0 && !plan.fed) {
    const Scout::Plan blasting = Look(state, snake, WallSight::kIgnored);
    if (blasting.fed || (blasting.safe && !plan.safe)) plan = blasting;
  }
  return scout_.Settle(plan, state, snake);
}

Scout::Plan CleverDriver::Look(const State& state, int snake, WallSight walls) {
  if (!scout_.Look(state, snake, appetite_.Look(state, snake), walls)) return {};
  const Scout::Plan meal = scout_.Feed();
  return meal.fed ? meal : scout_.Roam({});
}

}  // namespace coilrun
