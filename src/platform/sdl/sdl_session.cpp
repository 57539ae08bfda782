#include "platform/sdl/sdl_session.h"

#include <SDL.h>

namespace coilrun {

SdlSession::SdlSession() {
  SDL_SetMainReady();
  SDL_SetHint(SDL_HINT_APP_NAME, "Coilrun");
  // The accelerated window surface costs many times the processor time of the plain one.
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  if (SDL_Init(SDL_INIT_VIDEO) != 0) problem_ = std::string("no display: ") + SDL_GetError();
  if (problem_.empty()) SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER);
}

SdlSession::~SdlSession() {
  SDL_Quit();
}

}  // namespace coilrun
