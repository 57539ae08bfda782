#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/frame_pacer.h"
#include "platform/scaling.h"
#include "platform/sdl/lost_display.h"
#include "platform/sdl/presenter.h"
#include "platform/sdl/sdl_clock.h"
#include "platform/sdl/sdl_pointers.h"
#include "ports/screen.h"

namespace coilrun {

/// The game's window: full screen over the desktop, or an ordinary window.
class SdlWindow : public Screen {
 public:
  SdlWindow(const SdlClock& clock, bool windowed, const std::filesystem::path& icon);

  /// Why there is no window; empty when there is one.
  const std::string& Problem() const { return problem_; }
  /// Makes the next flip draw the whole picture again.
  void Damaged() { presenter_->Forget(); }
  /// Calls `save` when the display is lost, then ends the process.
  void SaveWhenLost(std::function<void()> save) { display_.Watch(*window_, std::move(save)); }

  /// The place on the screen that the window shows at this place in it, if any.
  std::optional<ScreenPlace> OnScreen(int x, int y) const;

  void Flip(ScreenPixels primary) override;
  void Present(ScreenPixels primary) override;
  void SetFullScreen(bool on) override;
  void ToggleFullScreen() override;
  void ShowPointer(bool visible) override;

 private:
  void SetIcon(const std::filesystem::path& file);
  bool IsHidden() const;
  void ApplyFullScreen();

  const SdlClock& clock_;
  bool windowed_;
  bool hasWindowedSize_;
  std::string problem_;
  LostDisplay display_;
  SdlPointer<SDL_Window> window_;
  std::unique_ptr<Presenter> presenter_;
  FramePacer pacer_;
  VsyncWatch vsync_;
};

}  // namespace coilrun
