#pragma once

#include <map>
#include <memory>

#include "platform/sdl/sdl_mixer.h"
#include "ports/audio_out.h"

struct Mix_Chunk;

namespace coilrun {

/// Effects on the loudspeakers. Without a device they load as usual and stay silent.
class SdlAudio : public AudioOut {
 public:
  explicit SdlAudio(SdlMixer& mixer) : mixer_(mixer) {}

  bool Open() override { return mixer_.Open(); }
  std::optional<int> Load(std::span<const std::uint8_t> wave) override;
  void Release(int effect) override;
  void Play(int effect) override;

 private:
  struct ChunkFreer {
    void operator()(Mix_Chunk* chunk) const;
  };
  struct Effect {
    std::unique_ptr<Mix_Chunk, ChunkFreer> chunk;
    int channel = -1;
  };

  static void Stop(const Effect& effect);

  SdlMixer& mixer_;
  std::map<int, Effect> effects_;
  int nextEffect_ = 1;
};

}  // namespace coilrun
