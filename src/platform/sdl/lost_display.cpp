#include "platform/sdl/lost_display.h"

#include <cstdlib>
#include <utility>

#include <SDL_syswm.h>
#include <X11/Xlib.h>

namespace coilrun {

void LostDisplay::Watch(SDL_Window& window, std::function<void()> save) {
  save_ = std::move(save);
  SDL_SysWMinfo info{};
  SDL_VERSION(&info.version);
  if (SDL_GetWindowWMInfo(&window, &info) != SDL_TRUE || info.subsystem != SDL_SYSWM_X11) return;
  XSetIOErrorHandler([](Display* /*display*/) { return 0; });
  XSetIOErrorExitHandler(
      info.info.x11.display,
      [](Display* /*display*/, void* self) { static_cast<LostDisplay*>(self)->Leave(); }, this);
}

void LostDisplay::Leave() {
  if (!std::exchange(lost_, true)) save_();
  std::_Exit(0);
}

}  // namespace coilrun
