#include "shell/timer_firing.h"

#include <algorithm>
#include <functional>

#include "model/animation.h"

namespace coilrun {
namespace {

constexpr int kTimers = 21;

void AdvanceAnimations(Timers& timers) {
  timers.AnimFrame = timers.AnimFrame >= kAnimationFrames ? 1 : timers.AnimFrame + 1;
  timers.AnimPhase = timers.AnimPhase + 1 >= kAnimationPhases ? 0 : timers.AnimPhase + 1;
}

void RestartPeriod(Timer& timer, std::int64_t now) {
  const std::int64_t interval = std::max<std::int64_t>(std::int64_t{timer.Interval} * 1000, 1);
  timer.start += (now - timer.start) / interval * interval;
}

/// The timers in firing order.
std::array<Timer*, kTimers> InOrder(Timers& timers) {
  std::array<Timer*, kTimers> order{&timers.tmr1, &timers.keybrd, &timers.picChange,
                                    &timers.ScrollNext};
  auto* next = order.begin() + 4;
  for (Timer& step : timers.iWait) *next++ = &step;
  *next = &timers.ResetSpeed;
  return order;
}

class Firing {
 public:
  Firing(State& state, TimerHandlers& handlers) : timers_(state.timers), handlers_(handlers) {}

  void Fire(Timer& timer) {
    timer.fired = timers_.now;
    const bool periodic =
        &timer == &timers_.tmr1 || &timer == &timers_.keybrd || &timer == &timers_.picChange;
    if (periodic) {
      RestartPeriod(timer, timers_.now);
    } else {
      Timers::Stop(timer);
    }
    Handle(timer);
  }

 private:
  void Handle(const Timer& timer) {
    if (&timer == &timers_.tmr1) handlers_.OnSecond();
    if (&timer == &timers_.keybrd) handlers_.OnKeyboard();
    if (&timer == &timers_.picChange) AdvanceAnimations(timers_);
    if (&timer == &timers_.ResetSpeed) handlers_.OnSpeedReset();
  }

  Timers& timers_;
  TimerHandlers& handlers_;
};

}  // namespace

void FireDueTimers(State& state, TimerHandlers& handlers) {
  const auto timers = InOrder(state.timers);
  const std::int64_t now = state.timers.now;
  const auto isDue = [now](const Timer* timer) { return timer->Enabled && timer->Due() <= now; };
  std::array<bool, kTimers> due{};
  std::transform(timers.begin(), timers.end(), due.begin(), isDue);
  Firing firing(state, handlers);
  for (std::size_t i = 0; i < timers.size(); ++i) {
    if (due[i] && isDue(timers[i])) firing.Fire(*timers[i]);
  }
}

}  // namespace coilrun
