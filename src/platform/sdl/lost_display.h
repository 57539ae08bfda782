#pragma once

#include <functional>

#include <SDL.h>

namespace coilrun {

/// Notices that the X server is gone: without this the X library would end the process on the spot.
/// (On Wayland, SDL itself asks the game to leave.)
class LostDisplay {
 public:
  /// Watches the display of this window until the process ends. `save` must not call anything that
  /// needs the display; after it, the process ends with exit code 0.
  void Watch(SDL_Window& window, std::function<void()> save);

  bool IsLost() const { return lost_; }

 private:
  void Leave();

  std::function<void()> save_;
  bool lost_ = false;
};

}  // namespace coilrun
