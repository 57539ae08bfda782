#pragma once

#include <cstdint>

namespace coilrun {

enum class PadDirection : std::uint8_t { kUp, kDown, kLeft, kRight };

/// The scan code of a direction of controller `pad`, which counts from 0: four a controller, from
/// 240 on. Those beyond the fourth share the fourth's.
constexpr int PadCode(int pad, PadDirection direction) {
  constexpr int kFirstCode = 240;
  constexpr int kCodesAPad = 4;
  constexpr int kLastPad = 3;
  return kFirstCode + kCodesAPad * (pad < kLastPad ? pad : kLastPad) + static_cast<int>(direction);
}

}  // namespace coilrun
