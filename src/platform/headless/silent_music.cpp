#include "platform/headless/silent_music.h"

#include <cmath>

#include "platform/sound_file.h"

namespace coilrun {

bool SilentMusic::Load(std::span<const std::uint8_t> file) {
  Stop();
  auto seconds = VorbisSeconds(file);
  if (!seconds) seconds = WaveSeconds(file);
  duration_ = seconds.value_or(0);
  return seconds.has_value();
}

void SilentMusic::Play(double position) {
  playing_ = duration_ > 0;
  startPosition_ = position;
  startMicros_ = clock_.NowMicros();
}

void SilentMusic::Stop() {
  playing_ = false;
  startPosition_ = 0;
}

double SilentMusic::Position() const {
  if (!playing_) return 0;
  constexpr double kMicrosPerSecond = 1e6;
  const auto played = static_cast<double>(clock_.NowMicros() - startMicros_) / kMicrosPerSecond;
  return std::fmod(startPosition_ + played, duration_);
}

}  // namespace coilrun
