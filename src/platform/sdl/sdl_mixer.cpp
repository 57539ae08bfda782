#include "platform/sdl/sdl_mixer.h"

#include <SDL.h>
#include <SDL_mixer.h>

namespace coilrun {
namespace {

constexpr int kRate = 44'100;
constexpr int kStereo = 2;
/// Samples mixed at a time: 12 ms, so that an effect keeps up with the picture.
constexpr int kChunk = 512;
constexpr int kChannels = 32;

}  // namespace

bool SdlMixer::Open() {
  if (open_) return true;
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
  open_ = Mix_OpenAudio(kRate, AUDIO_S16SYS, kStereo, kChunk) == 0;
  if (!open_) {
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
  }
  Mix_Init(MIX_INIT_OGG);
  Mix_AllocateChannels(kChannels);
  return true;
}

SdlMixer::~SdlMixer() {
  if (!open_) return;
  Mix_CloseAudio();
  Mix_Quit();
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

}  // namespace coilrun
