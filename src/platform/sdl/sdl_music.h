#pragma once

#include <memory>

#include "platform/headless/silent_music.h"
#include "platform/sdl/sdl_mixer.h"
#include "ports/bytes.h"
#include "ports/music_out.h"

namespace coilrun {

/// Music on the loudspeakers, which starts over at its end. Without a device it runs unheard.
class SdlMusic : public MusicOut {
 public:
  SdlMusic(const SdlMixer& mixer, const Clock& clock);
  ~SdlMusic() override;

  bool Load(std::span<const std::uint8_t> file) override;
  void Play(double position) override;
  void Stop() override;
  double Duration() const override;
  double Position() const override;
  void SetVolume(int hundredths) override;

 private:
  struct Piece;

  const SdlMixer& mixer_;
  SilentMusic unheard_;
  std::unique_ptr<Piece> piece_;
};

}  // namespace coilrun
