#include "platform/sdl/sdl_keys.h"

#include <utility>

#include "platform/sdl/scan_codes.h"
#include "ports/terminate.h"

namespace coilrun {
namespace {

bool IsAltEnter(const SDL_Keysym& key) {
  const bool isEnter = key.scancode == SDL_SCANCODE_RETURN || key.scancode == SDL_SCANCODE_KP_ENTER;
  return isEnter && (key.mod & KMOD_ALT) != 0;
}

}  // namespace

void SdlKeys::Gather(WindowListener& listener) {
  listener_ = &listener;
  SDL_Event event;
  while (SDL_PollEvent(&event) != 0) {
    switch (event.type) {
      case SDL_QUIT:
        listener.OnWindowEvent(WindowEvent::kClose);
        break;
      case SDL_WINDOWEVENT:
        TakeWindowEvent(event.window, listener);
        break;
      case SDL_KEYDOWN:
      case SDL_KEYUP:
        TakeKey(event.key, listener);
        break;
      default:
        mouse_.Take(event);
        controllers_.Take(event);
        break;
    }
  }
}

void SdlKeys::CloseOnLostDisplay() {
  try {
    if (listener_ != nullptr) listener_->OnWindowEvent(WindowEvent::kClose);
  } catch (const Terminate&) {
    // The settings are saved; there is no way back through the X library.
  }
}

void SdlKeys::Serve() {
  SDL_PumpEvents();
}

void SdlKeys::ForgetRecent() {
  SDL_PumpEvents();
  SDL_FlushEvent(SDL_WINDOWEVENT);
  SDL_FlushEvents(SDL_KEYDOWN, SDL_KEYUP);
  SDL_FlushEvents(SDL_MOUSEMOTION, SDL_MOUSEWHEEL);
  keys_.ReleaseAll();
  window_.Damaged();
}

void SdlKeys::TakeKey(const SDL_KeyboardEvent& event, WindowListener& listener) {
  const int code = ScanCodeOf(event.keysym.scancode);
  if (event.type == SDL_KEYUP) {
    keys_.Release(code, KeyHolder::kKeyboard);
  } else if (event.repeat != 0) {
    return;
  } else if (IsAltEnter(event.keysym)) {
    listener.OnWindowEvent(WindowEvent::kToggleFullScreen);
  } else {
    keys_.Press(code, KeyHolder::kKeyboard);
  }
}

void SdlKeys::TakeWindowEvent(const SDL_WindowEvent& event, WindowListener& listener) {
  switch (event.event) {
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_SIZE_CHANGED:
    case SDL_WINDOWEVENT_RESTORED:
      window_.Damaged();
      break;
    case SDL_WINDOWEVENT_FOCUS_LOST:
      keys_.ReleaseAll();
      if (std::exchange(hasFocus_, false)) listener.OnWindowEvent(WindowEvent::kFocusLost);
      break;
    case SDL_WINDOWEVENT_FOCUS_GAINED:
      if (!std::exchange(hasFocus_, true)) listener.OnWindowEvent(WindowEvent::kFocusGained);
      break;
    default:
      break;
  }
}

}  // namespace coilrun
