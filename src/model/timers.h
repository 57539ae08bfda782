#pragma once

#include <cstdint>

#include "model/saturating.h"
#include "model/table.h"

namespace coilrun {

/// A timer is plain state: only the pump fires it, and only `Timers` starts it.
struct Timer {
  int Interval = 1;  ///< milliseconds
  bool Enabled = false;
  std::int64_t start = 0;   ///< when the running interval began, in microseconds
  std::int64_t fired = -1;  ///< when it fired last

  std::int64_t Due() const { return start + std::int64_t{Interval} * 1000; }
};

/// All timers of the program, and the time when the pump last looked.
struct Timers {
  Timers();

  Timer tmr1;                    ///< one-second tick
  Timer keybrd;                  ///< keyboard pass
  Timer picChange;               ///< next frame of the animations
  Timer ScrollNext;              ///< next character of the credits ticker
  Table<Timer, 16, 0> iWait;     ///< step of snake k + 1
  Timer ResetSpeed;              ///< end of a speed change
  Int16 AnimFrame = 1;           ///< 1 to `kAnimationFrames`
  Int16 AnimPhase;               ///< below `kAnimationPhases`
  std::int64_t now = 0;          ///< microseconds since the process started
  std::int64_t frameLength = 0;  ///< microseconds between the last two flips

  /// Switches a timer on; one that is already running goes on undisturbed.
  void Start(Timer& timer) const;
  /// Like `Start`, but a timer that has fired just before this pass counts from the moment it was
  /// due, at most one frame back: steps keep their average pace at any frame rate.
  void StartEvenly(Timer& timer) const;
  static void Stop(Timer& timer) { timer.Enabled = false; }
  /// Gives a timer another interval; if it is running, it starts over from now.
  void SetInterval(Timer& timer, int milliseconds) const;
};

}  // namespace coilrun
