#include "platform/sdl/sdl_window.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "platform/png_file.h"

namespace coilrun {
namespace {

constexpr const char* kTitle = "Coilrun";
/// How much of the display's height a window's frame and a desktop's panel may take.
constexpr int kFrameRoom = 60;

struct Size {
  int width = kScreenWidth;
  int height = kScreenHeight;
};

/// Twice the screen's size where the display has room for it.
Size WindowedSize() {
  SDL_Rect usable{};
  SDL_GetDisplayUsableBounds(0, &usable);
  const bool fitsTwice = usable.w >= 2 * kScreenWidth && usable.h >= 2 * kScreenHeight + kFrameRoom;
  return fitsTwice ? Size{2 * kScreenWidth, 2 * kScreenHeight} : Size{};
}

/// The whole display: without a window manager, a window cannot grow later.
Size FullSize() {
  SDL_Rect bounds{};
  if (SDL_GetDisplayBounds(0, &bounds) != 0) return {};
  return {bounds.w, bounds.h};
}

SdlPointer<SDL_Window> CreateWindow(bool windowed) {
  Uint32 flags = SDL_WINDOW_RESIZABLE;
  if (!windowed) flags |= SDL_WINDOW_FULLSCREEN_DESKTOP;
  const Size size = windowed ? WindowedSize() : FullSize();
  return SdlPointer<SDL_Window>(SDL_CreateWindow(
      kTitle, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, size.width, size.height, flags));
}

}  // namespace

SdlWindow::SdlWindow(const SdlClock& clock, bool windowed, const std::filesystem::path& icon)
    : clock_(clock), windowed_(windowed), hasWindowedSize_(windowed) {
  const bool hardware = HasHardwareRenderer();
  window_ = CreateWindow(windowed);
  if (!window_) {
    problem_ = std::string("no window: ") + SDL_GetError();
    return;
  }
  SDL_SetWindowMinimumSize(window_.get(), kScreenWidth / 2, kScreenHeight / 2);
  SetIcon(icon);
  if (hardware) presenter_ = MakeRendererPresenter(*window_);
  if (!presenter_) presenter_ = MakeSurfacePresenter(*window_);
}

void SdlWindow::SetIcon(const std::filesystem::path& file) {
  auto icon = ReadIcon(file);
  if (!icon) return;
  constexpr int kDepth = 32;
  const SdlPointer<SDL_Surface> surface(
      SDL_CreateRGBSurfaceWithFormatFrom(icon->pixels.data(), icon->width, icon->height, kDepth,
                                         icon->width * 4, SDL_PIXELFORMAT_ARGB8888));
  if (surface) SDL_SetWindowIcon(window_.get(), surface.get());
}

bool SdlWindow::IsHidden() const {
  return (SDL_GetWindowFlags(window_.get()) & (SDL_WINDOW_MINIMIZED | SDL_WINDOW_HIDDEN)) != 0;
}

std::optional<ScreenPlace> SdlWindow::OnScreen(int x, int y) const {
  int width = 0;
  int height = 0;
  SDL_GetWindowSize(window_.get(), &width, &height);
  return PlaceOnScreen(PictureArea(std::max(1, width), std::max(1, height)), x, y);
}

void SdlWindow::Flip(ScreenPixels primary) {
  const bool hidden = IsHidden();
  if (!hidden) presenter_->Show(primary, true);
  if (!hidden && presenter_->Waits() && vsync_.HoldsBack(clock_.NowMicros())) return;
  std::this_thread::sleep_for(std::chrono::microseconds(pacer_.Wait(clock_.NowMicros())));
}

void SdlWindow::Present(ScreenPixels primary) {
  if (!IsHidden()) presenter_->Show(primary, false);
}

void SdlWindow::SetFullScreen(bool on) {
  // A full-screen window that has lost the focus already lies behind others; minimising it would
  // take it from players who watch it on a second display.
  if (on) ApplyFullScreen();
}

void SdlWindow::ToggleFullScreen() {
  windowed_ = !windowed_;
  ApplyFullScreen();
}

void SdlWindow::ApplyFullScreen() {
  SDL_SetWindowFullscreen(window_.get(), windowed_ ? 0 : SDL_WINDOW_FULLSCREEN_DESKTOP);
  if (windowed_ && !std::exchange(hasWindowedSize_, true)) {
    const Size size = WindowedSize();
    SDL_SetWindowSize(window_.get(), size.width, size.height);
    SDL_SetWindowPosition(window_.get(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED);
  }
  presenter_->Forget();
}

void SdlWindow::ShowPointer(bool visible) {
  if (!display_.IsLost()) SDL_ShowCursor(visible ? SDL_ENABLE : SDL_DISABLE);
}

}  // namespace coilrun
