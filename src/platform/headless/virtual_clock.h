#pragma once

#include <cstdint>

#include "ports/clock.h"

namespace coilrun {

/// Time that only flips and sleeps move.
class VirtualClock : public Clock {
 public:
  /// `flipsPerSecond` is 1 to 1000.
  explicit VirtualClock(int flipsPerSecond) : flipsPerSecond_(flipsPerSecond) {}

  std::int64_t NowMicros() const override { return now_; }
  void Sleep(int milliseconds) override { now_ += std::int64_t{milliseconds} * 1000; }
  /// Adds the time of one flip; the remainder is carried over, so that `flipsPerSecond` flips take
  /// exactly a second.
  void FlipAdvance();

 private:
  int flipsPerSecond_;
  std::int64_t now_ = 0;
  int carry_ = 0;
};

}  // namespace coilrun
