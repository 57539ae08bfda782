#pragma once

#include <array>
#include <vector>

#include "render/bitmap.h"
#include "render/pixels.h"

namespace coilrun {

/// Which pixels of a picture are transparent when it is drawn keyed.
enum class KeyMode : std::uint8_t {
  kBlack,    ///< black and near black: every channel 10 or less
  kGrey131,  ///< exactly 131, 131, 131
  kGrey128,  ///< exactly 128, 128, 128
};

constexpr bool IsTransparent(KeyMode key, Pixel pixel) {
  switch (key) {
    case KeyMode::kGrey131:
      return pixel == Color{131, 131, 131}.ToPixel();
    case KeyMode::kGrey128:
      return pixel == Color{128, 128, 128}.ToPixel();
    case KeyMode::kBlack:
      break;
  }
  return (pixel >> 16) <= 10 && (pixel >> 8 & 0xFF) <= 10 && (pixel & 0xFF) <= 10;
}

/// Pixels side by side in a row, all opaque. `place` is where they start on the screen, relative to
/// the picture's top left.
struct OpaqueRun {
  std::uint32_t place;
  std::uint32_t length;
};

/// Up to how many pixels a run of each size has; a size more for longer ones. Runs of one size are
/// copied in the same steps, without a decision.
inline constexpr std::array kRunSizes = {1, 3, 4, 8, 12, 16, 20};

/// Runs of one size that follow one another.
struct RunGroup {
  std::size_t size;  ///< index in kRunSizes, or beyond its end
  std::size_t count;
};

/// The opaque pixels of a picture row by row, so that memory is written in order. `pixels` are
/// those of all runs, side by side.
struct OpaqueRuns {
  std::vector<RunGroup> groups;
  std::vector<OpaqueRun> runs;
  std::vector<Pixel> pixels;
};

/// A picture held in memory, its colour key resolved. A default-made one is unset: drawing it draws
/// nothing.
class Picture {
 public:
  Picture() = default;
  Picture(Bitmap bitmap, KeyMode key);

  bool IsSet() const { return !bitmap_.pixels.empty(); }
  int Width() const { return bitmap_.width; }
  int Height() const { return bitmap_.height; }
  Rect Bounds() const { return {0, 0, bitmap_.width, bitmap_.height}; }
  KeyMode Key() const { return key_; }
  const std::vector<Pixel>& Pixels() const { return bitmap_.pixels; }
  /// A part as a picture of its own; unset when it does not lie wholly inside.
  Picture Cut(const Rect& part) const;

  const OpaqueRuns& Opaque() const { return opaque_; }
  /// How many pixels a keyed draw of the whole picture changes.
  int OpaquePixels() const { return static_cast<int>(opaque_.pixels.size()); }

 private:
  void AddRun(int x, int y, int length);

  Bitmap bitmap_;
  KeyMode key_ = KeyMode::kBlack;
  OpaqueRuns opaque_;
};

}  // namespace coilrun
