#pragma once

#include <map>

#include "platform/key_queue.h"
#include "platform/sdl/sdl_pointers.h"
#include "platform/stick.h"

namespace coilrun {

/// Game controllers, plugged in and out at any time, as keys: stick and pad are the arrows, A is
/// Enter, B is Escape, Start is Pause.
class SdlControllers {
 public:
  explicit SdlControllers(KeyQueue& keys) : keys_(keys) {}

  void Take(const SDL_Event& event);

 private:
  struct Controller {
    SdlPointer<SDL_GameController> device;
    Stick stick;
    int arrow = 0;
  };

  void PlugIn(int deviceIndex);
  void PlugOut(SDL_JoystickID id);
  void TakeLean(SDL_JoystickID id);

  KeyQueue& keys_;
  std::map<SDL_JoystickID, Controller> controllers_;
};

}  // namespace coilrun
