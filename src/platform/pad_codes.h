#pragma once

#include <cstdint>

#include "ports/scan_codes.h"

namespace coilrun {

enum class PadDirection : std::uint8_t { kUp, kDown, kLeft, kRight };

/// The scan code of a direction of controller `pad`, which counts from 0: four codes per
/// controller. Controllers beyond the fourth share the fourth's.
constexpr int PadCode(int pad, PadDirection direction) {
  constexpr int kLastPad = 3;
  return kFirstPadCode + kPadDirections * (pad < kLastPad ? pad : kLastPad) +
         static_cast<int>(direction);
}

}  // namespace coilrun
