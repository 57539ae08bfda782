#pragma once

#include <functional>

#include "ports/pump.h"

namespace coilrun {

/// Counts what is asked of it; `onYield` plays what happens meanwhile.
class FakePump final : public Pump {
 public:
  void Yield() override {
    ++yields;
    if (onYield) onYield();
  }
  void Flip() override {}
  void Present() override { ++presents; }
  void Sleep(int /*milliseconds*/) override {}

  std::function<void()> onYield;
  int yields = 0;
  int presents = 0;
};

}  // namespace coilrun
