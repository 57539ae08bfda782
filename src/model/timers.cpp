#include "model/timers.h"

#include <algorithm>

namespace coilrun {

Timers::Timers() {
  tmr1 = {1000, true};
  keybrd = {10, false};
  picChange = {66, true};
  ScrollNext = {55, true};
  ResetSpeed = {10000, false};
}

void Timers::Start(Timer& timer) const {
  if (timer.Enabled) return;
  timer.Enabled = true;
  timer.start = now;
}

void Timers::StartEvenly(Timer& timer) const {
  if (timer.Enabled) return;
  const std::int64_t due = timer.Due();
  timer.Enabled = true;
  timer.start = timer.fired == now ? std::clamp(due, now - frameLength, now) : now;
}

void Timers::SetInterval(Timer& timer, int milliseconds) const {
  timer.Interval = std::max(milliseconds, 0);
  timer.start = now;
}

}  // namespace coilrun
