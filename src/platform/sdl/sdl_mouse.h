#pragma once

#include <deque>
#include <optional>

#include "platform/sdl/sdl_window.h"
#include "ports/pointer.h"

namespace coilrun {

/// The mouse over the game's window.
class SdlMouse {
 public:
  explicit SdlMouse(const SdlWindow& window) : window_(window) {}

  /// Notes what the mouse did; other events are ignored.
  void Take(const SDL_Event& event);
  /// The oldest noted event that has not been taken yet.
  std::optional<PointerEvent> Next();

 private:
  void Move(const SDL_MouseMotionEvent& motion);
  void Note(const PointerEvent& event);

  const SdlWindow& window_;
  std::deque<PointerEvent> events_;
};

}  // namespace coilrun
