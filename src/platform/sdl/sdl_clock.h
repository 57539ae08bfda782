#pragma once

#include <chrono>

#include "ports/clock.h"

namespace coilrun {

/// Real time. Long waits keep the window responsive.
class SdlClock : public Clock {
 public:
  std::int64_t NowMicros() const override;
  void Sleep(int milliseconds) override;

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace coilrun
