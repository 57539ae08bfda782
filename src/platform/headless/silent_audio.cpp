#include "platform/headless/silent_audio.h"

#include "platform/sound_file.h"

namespace coilrun {

std::optional<int> SilentAudio::Load(std::span<const std::uint8_t> wave) {
  if (!WaveSeconds(wave)) return std::nullopt;
  return nextEffect_++;
}

}  // namespace coilrun
