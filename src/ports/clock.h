#pragma once

#include <cstdint>

namespace coilrun {

/// The only source of time. Headless runs have a virtual one that only flips and sleeps move.
class Clock {
 public:
  virtual ~Clock() = default;

  /// Microseconds since the process started; never decreases.
  virtual std::int64_t NowMicros() const = 0;
  /// Waits; `milliseconds` is 0 or more.
  virtual void Sleep(int milliseconds) = 0;
};

}  // namespace coilrun
