#pragma once

#include "ports/audio_out.h"

namespace coilrun {

/// Takes the same wave files as the real device, and plays nothing.
class SilentAudio : public AudioOut {
 public:
  bool Open() override { return true; }
  std::optional<int> Load(std::span<const std::uint8_t> wave) override;
  void Release(int /*effect*/) override {}
  void Play(int /*effect*/) override {}

 private:
  int nextEffect_ = 1;
};

}  // namespace coilrun
