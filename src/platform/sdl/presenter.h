#pragma once

#include <memory>

#include "platform/sdl/sdl_pointers.h"
#include "ports/screen.h"

namespace coilrun {

/// One way to bring a picture of the screen into a window.
class Presenter {
 public:
  virtual ~Presenter() = default;

  /// Shows the picture; with `wait`, at the end of the display's frame if it has one.
  virtual void Show(ScreenPixels picture, bool wait) = 0;
  /// Whether the display makes the caller wait; otherwise the caller paces itself.
  virtual bool Waits() const = 0;
  /// The window has lost what it showed.
  virtual void Forget() = 0;
};

/// True when a graphics card draws; a software renderer that imitates one costs many times more
/// than `SurfacePresenter`.
bool HasHardwareRenderer();

/// Shows by a streaming texture. Nothing when the window gets no renderer.
std::unique_ptr<Presenter> MakeRendererPresenter(SDL_Window& window);
/// Shows by copying what has changed into the window's own pixels.
std::unique_ptr<Presenter> MakeSurfacePresenter(SDL_Window& window);

}  // namespace coilrun
