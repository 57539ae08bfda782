#include "platform/sdl/sdl_controllers.h"

#include "platform/arrow_codes.h"

namespace coilrun {
namespace {

/// The key that a button stands for; 0 for none.
int KeyOfButton(int button) {
  constexpr int kEscapeCode = 1;
  constexpr int kEnterCode = 28;
  constexpr int kPauseCode = 197;
  switch (button) {
    case SDL_CONTROLLER_BUTTON_A:
      return kEnterCode;
    case SDL_CONTROLLER_BUTTON_B:
      return kEscapeCode;
    case SDL_CONTROLLER_BUTTON_START:
      return kPauseCode;
    case SDL_CONTROLLER_BUTTON_DPAD_UP:
      return kUpCode;
    case SDL_CONTROLLER_BUTTON_DPAD_DOWN:
      return kDownCode;
    case SDL_CONTROLLER_BUTTON_DPAD_LEFT:
      return kLeftCode;
    case SDL_CONTROLLER_BUTTON_DPAD_RIGHT:
      return kRightCode;
    default:
      return 0;
  }
}

}  // namespace

void SdlControllers::Take(const SDL_Event& event) {
  switch (event.type) {
    case SDL_CONTROLLERDEVICEADDED:
      PlugIn(event.cdevice.which);
      break;
    case SDL_CONTROLLERDEVICEREMOVED:
      PlugOut(event.cdevice.which);
      break;
    case SDL_CONTROLLERBUTTONDOWN:
      keys_.Press(KeyOfButton(event.cbutton.button), KeyHolder::kButtons);
      break;
    case SDL_CONTROLLERBUTTONUP:
      keys_.Release(KeyOfButton(event.cbutton.button), KeyHolder::kButtons);
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
  controllers_[id].device = std::move(device);
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
  const int arrow =
      controller.stick.Lean(SDL_GameControllerGetAxis(device, SDL_CONTROLLER_AXIS_LEFTX),
                            SDL_GameControllerGetAxis(device, SDL_CONTROLLER_AXIS_LEFTY));
  if (arrow == controller.arrow) return;
  keys_.Release(controller.arrow, KeyHolder::kStick);
  keys_.Press(arrow, KeyHolder::kStick);
  controller.arrow = arrow;
}

}  // namespace coilrun
