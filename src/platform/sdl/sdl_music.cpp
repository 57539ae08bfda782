#include "platform/sdl/sdl_music.h"

#include <algorithm>
#include <cmath>

#include <SDL_mixer.h>

namespace coilrun {
namespace {

/// Stands in for an unknown length: longer than anyone listens.
constexpr double kEndless = 86'400;
constexpr int kForever = -1;

struct MusicFreer {
  void operator()(Mix_Music* music) const { Mix_FreeMusic(music); }
};

}  // namespace

/// A piece of music, which is decoded from the file's bytes as it plays.
struct SdlMusic::Piece {
  explicit Piece(std::span<const std::uint8_t> file)
      : bytes(file.begin(), file.end()),
        music(Mix_LoadMUS_RW(SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size())), 1)) {
  }

  Bytes bytes;
  std::unique_ptr<Mix_Music, MusicFreer> music;
};

SdlMusic::SdlMusic(const SdlMixer& mixer, const Clock& clock) : mixer_(mixer), unheard_(clock) {}

SdlMusic::~SdlMusic() = default;

bool SdlMusic::Load(std::span<const std::uint8_t> file) {
  piece_.reset();
  if (!mixer_.IsOpen()) return unheard_.Load(file);
  if (file.empty()) return false;
  auto piece = std::make_unique<Piece>(file);
  if (!piece->music) return false;
  piece_ = std::move(piece);
  return true;
}

void SdlMusic::Play(double position) {
  if (!piece_) return unheard_.Play(position);
  if (Mix_PlayMusic(piece_->music.get(), kForever) == 0 && position > 0)
    Mix_SetMusicPosition(position);
}

void SdlMusic::Stop() {
  unheard_.Stop();
  if (piece_) Mix_HaltMusic();
}

double SdlMusic::Duration() const {
  if (!piece_) return unheard_.Duration();
  const double seconds = Mix_MusicDuration(piece_->music.get());
  return seconds > 0 ? seconds : kEndless;
}

double SdlMusic::Position() const {
  if (!piece_) return unheard_.Position();
  return Mix_PlayingMusic() != 0 ? std::max(0.0, Mix_GetMusicPosition(piece_->music.get())) : 0;
}

void SdlMusic::SetVolume(int hundredths) {
  if (!mixer_.IsOpen()) return;
  const double share = std::pow(10.0, hundredths / 2000.0);
  Mix_VolumeMusic(static_cast<int>(std::lround(share * MIX_MAX_VOLUME)));
}

}  // namespace coilrun
