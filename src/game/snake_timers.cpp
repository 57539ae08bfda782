#include "game/snake_timers.h"

#include "game/game.h"
#include "game/speed.h"

namespace coilrun {

void ResetSnakeTimers(State& state) {
  const Int16 interval = StepPeriod(state.settings.GlobalSpeed);
  for (int number = 1; number <= kMaxSnakes; ++number) {
    state.timers.SetInterval(StepTimer(state, number), interval);
    state.Snakes(number).BaseInterval = interval;
    state.Snakes(number).Interval = interval;
  }
}

void StartSnakeTimers(State& state) {
  for (int number = kPlayer + 1; number <= state.mode.NumSnakes; ++number) {
    Timer& timer = StepTimer(state, number);
    state.timers.Start(timer);
    state.timers.SetInterval(timer, state.Snakes(number).BaseInterval);
  }
}

void StopSnakeTimers(State& state) {
  for (int number = kPlayer + 1; number <= state.mode.NumSnakes; ++number) {
    Timers::Stop(StepTimer(state, number));
    state.Snakes(number).Dir = Dir::kNone;
    state.Snakes(number).NextDir = Dir::kNone;
  }
}

}  // namespace coilrun
