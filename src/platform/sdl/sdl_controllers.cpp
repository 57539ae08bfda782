#include "platform/sdl/sdl_controllers.h"

#include <algorithm>

#include "platform/pad_codes.h"
#include "ports/scan_codes.h"

namespace coilrun {

int SdlControllers::KeyOfButton(const SDL_ControllerButtonEvent& event) const {
  const auto found = controllers_.find(event.which);
  const int number = found == controllers_.end() ? 0 : found->second.number;
  switch (event.button) {
    case SDL_CONTROLLER_BUTTON_A:
      return kKeyEnter;
    case SDL_CONTROLLER_BUTTON_B:
      return kKeyEscape;
    case SDL_CONTROLLER_BUTTON_START:
      return kKeyPause;
    case SDL_CONTROLLER_BUTTON_DPAD_UP:
      return PadCode(number, PadDirection::kUp);
    case SDL_CONTROLLER_BUTTON_DPAD_DOWN:
      return PadCode(number, PadDirection::kDown);
    case SDL_CONTROLLER_BUTTON_DPAD_LEFT:
      return PadCode(number, PadDirection::kLeft);
    case SDL_CONTROLLER_BUTTON_DPAD_RIGHT:
      return PadCode(number, PadDirection::kRight);
    default:
      return 0;
  }
}

void SdlControllers::Take(const SDL_Event& event) {
  switch (event.type) {
    case SDL_CONTROLLERDEVICEADDED:
      PlugIn(event.cdevice.which);
      break;
    case SDL_CONTROLLERDEVICEREMOVED:
      PlugOut(event.cdevice.which);
      break;
    case SDL_CONTROLLERBUTTONDOWN:
      keys_.Press(KeyOfButton(event.cbutton), KeyHolder::kButtons);
      break;
    case SDL_CONTROLLERBUTTONUP:
      keys_.Release(KeyOfButton(event.cbutton), KeyHolder::kButtons);
      break;
    case SDL_CONTROLLERAXISMOTION:
      TakeLean(event.caxis.which);
      break;
    default:
      break;
  }
}

void SdlControllers::PlugIn(int deviceIndex) {
  SdlPointer<SDL_GameController> device(SDL_GameControllerOpen(deviceIndex));
  if (!device) return;
  const SDL_JoystickID id = SDL_JoystickInstanceID(SDL_GameControllerGetJoystick(device.get()));
  const int number = FreeNumber();
  Controller& controller = controllers_[id];
  controller.device = std::move(device);
  controller.number = number;
}

int SdlControllers::FreeNumber() const {
  int number = 0;
  const auto isHeld = [&number](const auto& entry) { return entry.second.number == number; };
  while (std::any_of(controllers_.begin(), controllers_.end(), isHeld)) ++number;
  return number;
}

void SdlControllers::PlugOut(SDL_JoystickID id) {
  if (controllers_.erase(id) == 0) return;
  keys_.ReleaseAll(KeyHolder::kButtons);
  keys_.ReleaseAll(KeyHolder::kStick);
}

void SdlControllers::TakeLean(SDL_JoystickID id) {
  const auto found = controllers_.find(id);
  if (found == controllers_.end()) return;
  Controller& controller = found->second;
  SDL_GameController* const device = controller.device.get();
  const auto direction =
      controller.stick.Lean(SDL_GameControllerGetAxis(device, SDL_CONTROLLER_AXIS_LEFTX),
                            SDL_GameControllerGetAxis(device, SDL_CONTROLLER_AXIS_LEFTY));
  const int code = direction ? PadCode(controller.number, *direction) : 0;
  if (code == controller.code) return;
  keys_.Release(controller.code, KeyHolder::kStick);
  keys_.Press(code, KeyHolder::kStick);
  controller.code = code;
}

}  // namespace coilrun
