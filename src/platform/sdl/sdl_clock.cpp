#include "platform/sdl/sdl_clock.h"

#include <algorithm>

#include <SDL.h>

namespace coilrun {

std::int64_t SdlClock::NowMicros() const {
  const auto passed = std::chrono::steady_clock::now() - start_;
  return std::chrono::duration_cast<std::chrono::microseconds>(passed).count();
}

void SdlClock::Sleep(int milliseconds) {
  constexpr int kSlice = 50;
  for (int left = milliseconds; left > 0; left -= kSlice) {
    SDL_Delay(static_cast<Uint32>(std::min(left, kSlice)));
    SDL_PumpEvents();
  }
}

}  // namespace coilrun
