#pragma once

#include <memory>

#include <SDL.h>

namespace coilrun {

/// Releases each of SDL's objects in the way it requires.
struct SdlDeleter {
  void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
  void operator()(SDL_Renderer* renderer) const { SDL_DestroyRenderer(renderer); }
  void operator()(SDL_Texture* texture) const { SDL_DestroyTexture(texture); }
  void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
  void operator()(SDL_GameController* controller) const { SDL_GameControllerClose(controller); }
};

template <typename Object>
using SdlPointer = std::unique_ptr<Object, SdlDeleter>;

}  // namespace coilrun
