#include <cmath>
#include <cstdint>

#include "platform/sound_file.h"

/// Any bytes as an Ogg Vorbis file: with a length, or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto seconds = coilrun::VorbisSeconds({data, size});
  if (seconds && !(*seconds > 0 && std::isfinite(*seconds))) __builtin_trap();
  return 0;
}
