#include <cstdint>

#include "platform/sound_file.h"

/// Any bytes as a wave file: with samples, or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr double kLowestRate = 1000;
  const auto seconds = coilrun::WaveSeconds({data, size});
  const auto most = static_cast<double>(size) / kLowestRate;
  if (seconds && !(*seconds > 0 && *seconds <= most)) __builtin_trap();
  return 0;
}
