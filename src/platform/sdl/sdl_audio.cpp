#include "platform/sdl/sdl_audio.h"

#include <SDL_mixer.h>

#include "platform/sound_file.h"

namespace coilrun {

void SdlAudio::ChunkFreer::operator()(Mix_Chunk* chunk) const {
  Mix_FreeChunk(chunk);
}

std::optional<int> SdlAudio::Load(std::span<const std::uint8_t> wave) {
  if (!WaveSeconds(wave)) return std::nullopt;
  Effect effect;
  if (mixer_.IsOpen()) {
    SDL_RWops* const source = SDL_RWFromConstMem(wave.data(), static_cast<int>(wave.size()));
    effect.chunk.reset(Mix_LoadWAV_RW(source, 1));
    if (!effect.chunk) return std::nullopt;
  }
  effects_[nextEffect_] = std::move(effect);
  return nextEffect_++;
}

void SdlAudio::Release(int effect) {
  effects_.erase(effect);
}

void SdlAudio::Play(int effect) {
  const auto found = effects_.find(effect);
  if (found == effects_.end() || !found->second.chunk) return;
  Stop(found->second);
  found->second.channel = Mix_PlayChannel(-1, found->second.chunk.get(), 0);
}

void SdlAudio::Stop(const Effect& effect) {
  if (effect.channel >= 0 && Mix_GetChunk(effect.channel) == effect.chunk.get())
    Mix_HaltChannel(effect.channel);
}

}  // namespace coilrun
