#pragma once

#include "ports/clock.h"
#include "ports/music_out.h"

namespace coilrun {

/// Music that runs in virtual time and is not heard. It starts over at its end.
class SilentMusic : public MusicOut {
 public:
  explicit SilentMusic(const Clock& clock) : clock_(clock) {}

  bool Load(std::span<const std::uint8_t> file) override;
  void Play(double position) override;
  void Stop() override;
  double Duration() const override { return duration_; }
  double Position() const override;
  void SetVolume(int /*hundredths*/) override {}

 private:
  const Clock& clock_;
  double duration_ = 0;
  double startPosition_ = 0;
  std::int64_t startMicros_ = 0;
  bool playing_ = false;
};

}  // namespace coilrun
