#include "platform/headless/virtual_clock.h"

namespace coilrun {

void VirtualClock::FlipAdvance() {
  constexpr int kSecond = 1'000'000;
  const int due = kSecond + carry_;
  now_ += due / flipsPerSecond_;
  carry_ = due % flipsPerSecond_;
}

}  // namespace coilrun
