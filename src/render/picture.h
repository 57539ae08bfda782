#pragma once

#include <vector>

#include "render/bitmap.h"
#include "render/copy_rows.h"
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

/// A picture held in memory, with its colour key resolved. A default-constructed one is unset:
/// drawing it draws nothing.
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

  /// What a keyed draw of the whole picture copies; places count from the picture's top left.
  const PixelRows& Opaque() const { return opaque_; }

 private:
  Bitmap bitmap_;
  KeyMode key_ = KeyMode::kBlack;
  PixelRows opaque_;
};

}  // namespace coilrun
