#include "content/snake_timers.h"

#include <algorithm>
#include <cmath>

namespace coilrun {
namespace {

/// A settings value as a whole number of milliseconds, cut to 16 bits.
Int16 Milliseconds(double value) {
  return static_cast<std::int64_t>(std::clamp(std::nearbyint(value), -1e6, 1e6));
}

}  // namespace

void ResetSnakeTimers(State& state) {
  const Int16 interval = Milliseconds(state.settings.GlobalSpeed);
  for (int number = 1; number <= kMaxSnakes; ++number) {
    state.timers.SetInterval(state.timers.iWait(number - 1), interval);
    state.Snakes(number).BaseInterval = interval;
    state.Snakes(number).Interval = interval;
  }
}

void StartSnakeTimers(State& state) {
  for (int number = 2; number <= state.mode.NumSnakes; ++number) {
    Timer& timer = state.timers.iWait(number - 1);
    state.timers.Start(timer);
    state.timers.SetInterval(timer, state.Snakes(number).BaseInterval);
  }
}

void StopSnakeTimers(State& state) {
  for (int number = 2; number <= state.mode.NumSnakes; ++number) {
    Timers::Stop(state.timers.iWait(number - 1));
    state.Snakes(number).Dir = Dir::kNone;
    state.Snakes(number).NextDir = Dir::kNone;
  }
}

}  // namespace coilrun
