#pragma once

#include "ports/music_out.h"

namespace coilrun {

struct SilentMusic final : MusicOut {
  double position = 0;
  double duration = 0;

  bool Load(std::span<const std::uint8_t> /*file*/) override { return true; }
  void Play(double from) override { position = from; }
  void Stop() override {}
  double Duration() const override { return duration; }
  double Position() const override { return position; }
  void SetVolume(int /*hundredths*/) override {}
};

}  // namespace coilrun
