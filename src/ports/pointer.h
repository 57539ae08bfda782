#pragma once

#include <cstdint>

namespace coilrun {

enum class PointerAct : std::uint8_t { kMove, kLeftButton, kRightButton, kWheelUp, kWheelDown };

/// One thing that the pointer did.
struct PointerEvent {
  PointerAct act = PointerAct::kMove;
  int x = 0;  ///< where a move ended, in pixels of the screen; 0 for other acts
  int y = 0;
};

}  // namespace coilrun
