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
  void Flip() override { ++flips; }
  void Present() override {}
  void Sleep(int /*milliseconds*/) override {}

  std::function<void()> onYield;
  int yields = 0;
  int flips = 0;
};

}  // namespace coilrun
