#pragma once

#include "model/state.h"

namespace coilrun {

/// What happens when a timer fires; a one-shot timer without an effect of its own has no handler.
class TimerHandlers {
 public:
  virtual ~TimerHandlers() = default;

  virtual void OnSecond() = 0;
  virtual void OnKeyboard() = 0;
  virtual void OnSpeedReset() = 0;
};

/// Fires the timers that are due now, each at most once, in their fixed order. A timer that a
/// handler switches on waits for the next call. A periodic timer fires again one interval after it
/// was due; whole intervals that were missed are dropped.
void FireDueTimers(State& state, TimerHandlers& handlers);

}  // namespace coilrun
