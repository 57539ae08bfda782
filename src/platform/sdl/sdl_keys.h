#pragma once

#include "platform/key_queue.h"
#include "platform/sdl/sdl_controllers.h"
#include "platform/sdl/sdl_mouse.h"
#include "platform/sdl/sdl_window.h"
#include "ports/key_source.h"

namespace coilrun {

/// The player's keyboard, controllers, mouse and window.
class SdlKeys : public KeySource {
 public:
  explicit SdlKeys(SdlWindow& window) : window_(window), controllers_(keys_), mouse_(window) {}
  /// Tells the current listener to close the window, because the display is gone.
  void CloseOnLostDisplay();
  /// From now on a lost display is told to nobody.
  void ForgetListener() { listener_ = nullptr; }

  void Gather(WindowListener& listener) override;
  void Serve() override;
  void ReadKeys(KeySnapshot& keys) override { keys_.ReadKeys(keys); }
  std::optional<PointerEvent> NextPointerEvent() override { return mouse_.Next(); }
  /// Drops the keys and focus changes that were meant for a box in front of the window.
  void ForgetRecent();

 private:
  void TakeKey(const SDL_KeyboardEvent& event, WindowListener& listener);
  void TakeWindowEvent(const SDL_WindowEvent& event, WindowListener& listener);

  SdlWindow& window_;
  WindowListener* listener_ = nullptr;
  KeyQueue keys_;
  SdlControllers controllers_;
  SdlMouse mouse_;
  bool hasFocus_ = true;
};

}  // namespace coilrun
