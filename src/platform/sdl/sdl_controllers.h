#pragma once

#include <map>

#include "platform/key_queue.h"
#include "platform/sdl/sdl_pointers.h"
#include "platform/stick.h"

namespace coilrun {

/// Game controllers, plugged in and out at any time, as keys: stick and pad have their own codes on
/// each controller, A is Enter, B is Escape, Start is Pause.
class SdlControllers {
 public:
  explicit SdlControllers(KeyQueue& keys) : keys_(keys) {}

  void Take(const SDL_Event& event);

 private:
  struct Controller {
    SdlPointer<SDL_GameController> device;
    Stick stick;
    int number = 0;  ///< the lowest that was free, from 0
    int code = 0;    ///< the one that the stick holds down; 0 for none
  };

  void PlugIn(int deviceIndex);
  void PlugOut(SDL_JoystickID id);
  int FreeNumber() const;
  /// The key that a button stands for; 0 for none.
  int KeyOfButton(const SDL_ControllerButtonEvent& event) const;
  void TakeLean(SDL_JoystickID id);

  KeyQueue& keys_;
  std::map<SDL_JoystickID, Controller> controllers_;
};

}  // namespace coilrun
