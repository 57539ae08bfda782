#pragma once

#include <cstdint>

namespace coilrun {

/// Tells a loop how long to wait so that its frames come every 1/60 s.
class FramePacer {
 public:
  /// Microseconds from `now` to the end of this frame, 0 to 16667. A loop that was late by more
  /// than a frame does not catch up.
  std::int64_t Wait(std::int64_t now);

 private:
  std::int64_t due_ = 0;
};

/// Finds out whether a display really makes flips wait for it.
class VsyncWatch {
 public:
  /// Takes the time at the end of a flip; false for good once flips have come far faster than any
  /// display works.
  bool HoldsBack(std::int64_t now);

 private:
  std::int64_t lastFlip_ = 0;
  int fastFlips_ = 0;
};

}  // namespace coilrun
