#include "platform/sdl/sdl_session.h"

#include <cstdlib>
#include <string_view>

#include <SDL.h>

namespace coilrun {
namespace {

/// Where SDL finds no display, it draws into memory; that counts as a display only when it was
/// asked for.
bool IsRealDisplay() {
  const std::string_view driver = SDL_GetCurrentVideoDriver();
  const bool inMemory = driver == "offscreen" || driver == "dummy" || driver == "evdev";
  return !inMemory || std::getenv("SDL_VIDEODRIVER") != nullptr;
}

}  // namespace

SdlSession::SdlSession() {
  SDL_SetMainReady();
  SDL_SetHint(SDL_HINT_APP_NAME, "Coilrun");
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  // The accelerated window surface costs many times the processor time of the plain one.
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  if (SDL_Init(SDL_INIT_VIDEO) != 0 || !IsRealDisplay()) {
    problem_ = "no display";
    return;
  }
  SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER);
}

SdlSession::~SdlSession() {
  SDL_Quit();
}

}  // namespace coilrun
