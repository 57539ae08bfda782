#pragma once

#include <cstdint>
#include <span>

namespace coilrun {

inline constexpr int kScreenWidth = 640;
inline constexpr int kScreenHeight = 480;
inline constexpr int kScreenPixels = kScreenWidth * kScreenHeight;

/// A whole picture of the screen: 640 x 480 pixels of the form 0x00RRGGBB, row by row.
using ScreenPixels = std::span<const std::uint32_t, kScreenPixels>;

/// Where the primary buffer is shown.
class Screen {
 public:
  virtual ~Screen() = default;

  /// Shows the picture and waits for the end of the frame (vsync, 1/60 s, or one virtual frame).
  virtual void Flip(ScreenPixels primary) = 0;
  /// Shows the picture at once.
  virtual void Present(ScreenPixels primary) = 0;
  /// Takes the whole screen, or gives it back (the window stays, minimised or behind). No effect in
  /// a windowed run.
  virtual void SetFullScreen(bool on) = 0;
  /// Switches between full screen and a window for good (Alt+Enter).
  virtual void ToggleFullScreen() = 0;
  virtual void ShowPointer(bool visible) = 0;
};

}  // namespace coilrun
