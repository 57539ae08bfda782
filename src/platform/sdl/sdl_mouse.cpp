#include "platform/sdl/sdl_mouse.h"

namespace coilrun {
namespace {

/// More events than this pile up only while nobody asks for them.
constexpr std::size_t kMostWaiting = 256;

}  // namespace

void SdlMouse::Take(const SDL_Event& event) {
  if (event.type == SDL_MOUSEMOTION) Move(event.motion);
  if (event.type == SDL_MOUSEBUTTONDOWN && event.button.button == SDL_BUTTON_LEFT) {
    Note({PointerAct::kLeftButton});
  }
  if (event.type == SDL_MOUSEBUTTONDOWN && event.button.button == SDL_BUTTON_RIGHT) {
    Note({PointerAct::kRightButton});
  }
  if (event.type == SDL_MOUSEWHEEL && event.wheel.y != 0) {
    Note({event.wheel.y > 0 ? PointerAct::kWheelUp : PointerAct::kWheelDown});
  }
}

std::optional<PointerEvent> SdlMouse::Next() {
  if (events_.empty()) return std::nullopt;
  const PointerEvent event = events_.front();
  events_.pop_front();
  return event;
}

void SdlMouse::Move(const SDL_MouseMotionEvent& motion) {
  // A window that appears below a resting mouse hears of it too: that must not move any cursor.
  const bool hasMoved = motion.xrel != 0 || motion.yrel != 0;
  const auto place = window_.OnScreen(motion.x, motion.y);
  if (!hasMoved || !place) return;
  const PointerEvent event{PointerAct::kMove, place->x, place->y};
  if (!events_.empty() && events_.back().act == PointerAct::kMove) {
    events_.back() = event;
  } else {
    Note(event);
  }
}

void SdlMouse::Note(const PointerEvent& event) {
  if (events_.size() < kMostWaiting) events_.push_back(event);
}

}  // namespace coilrun
