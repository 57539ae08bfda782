#include "rivals/master.h"

#include <algorithm>

namespace coilrun {
namespace {

/// Points for a place that is taken from others.
constexpr int kTaken = 200;
/// A step that takes this many more places than another one comes before a meal.
constexpr int kWorthwhile = 20;

}  // namespace

Dir MasterDriver::Choose(State& state, int snake) {
  Scout::Plan plan = Look(state, snake, WallSight::kStand);
  if (state.Snakes(snake).TNT > 0 && !plan.fed) {
    const Scout::Plan blasting = Look(state, snake, WallSight::kIgnored);
    if (blasting.fed || (blasting.safe && !plan.safe)) plan = blasting;
  }
  if (!plan.safe) {
    const Scout::Plan power = SeekPower(state, snake);
    if (power.fed) plan = power;
  }
  return scout_.Settle(plan, state, snake);
}

Scout::Plan MasterDriver::Look(const State& state, int snake, WallSight walls) {
  if (!scout_.Look(state, snake, appetite_.Look(state, snake), walls)) return {};
  if (FindPrey(state, snake)) {
    const Scout::Plan kill = scout_.Roam(gains_);
    if (kill.safe) return kill;
  }
  const Scout::Plan meal = scout_.Feed();
  return meal.fed ? meal : scout_.Roam(gains_);
}

/// Atomic power costs points, but points are cheaper than a life.
Scout::Plan MasterDriver::SeekPower(const State& state, int snake) {
  const std::span<const Goal> power = appetite_.Power(state);
  if (power.empty() || !scout_.Look(state, snake, power, WallSight::kStand)) return {};
  return scout_.Hurry();
}

/// Notes in `gains_` what each way takes from others; true when it matters which way is taken.
bool MasterDriver::FindPrey(const State& state, int snake) {
  hunt_.Look(scout_.Field(), state, snake);
  const auto ways = scout_.Ways();
  std::transform(ways.begin(), ways.end(), gains_.begin(),
                 [this](const Scout::Way& way) { return kTaken * hunt_.Taken(way.node); });
  const auto gains = std::span(gains_).first(ways.size());
  const auto [least, most] = std::minmax_element(gains.begin(), gains.end());
  return *most - *least >= kTaken * kWorthwhile;
}

}  // namespace coilrun
