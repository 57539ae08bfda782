#pragma once

#include <span>
#include <vector>

#include "ports/screen.h"
#include "ports/text_face.h"
#include "render/picture.h"

namespace coilrun {

/// A buffer the size of the screen. Pictures are never clipped: one that is unset, does not lie
/// wholly on the screen, or does not hold the whole source rectangle is not drawn at all.
class Surface {
 public:
  Surface();

  void Fill(Color color);
  /// Fills the part of the rectangle that lies on the screen.
  void FillRect(const Rect& rect, Color color);
  /// Draws the whole picture with its colour key.
  void Blit(const Picture& picture, int x, int y) {
    if (Holds(picture.Bounds(), x, y)) copyRows_(picture.Opaque(), At(x, y));
  }
  /// Draws a part of the picture, with or without its colour key.
  void Blit(const Picture& picture, const Rect& from, int x, int y, bool keyed) {
    if (keyed && from == picture.Bounds()) {
      Blit(picture, x, y);
    } else if (picture.Bounds().Holds(from) && Holds(from, x, y)) {
      keyed ? CopyPartKeyed(picture, from, x, y) : CopyPart(picture, from, x, y);
    }
  }
  /// Lays a text over the pixels; what lies off the screen is cut off.
  void BlendText(const TextMask& mask, int x, int y, Color color);

  ScreenPixels Pixels() const { return ScreenPixels{pixels_}; }
  std::span<Pixel, kScreenPixels> Pixels() { return std::span<Pixel, kScreenPixels>{pixels_}; }

 private:
  static constexpr bool Holds(const Rect& size, int x, int y) {
    return x >= 0 && y >= 0 && x + size.Width() <= kScreenWidth &&
           y + size.Height() <= kScreenHeight;
  }
  Pixel* At(int x, int y) {
    return pixels_.data() + static_cast<std::ptrdiff_t>(y) * kScreenWidth + x;
  }
  void CopyPart(const Picture& picture, const Rect& from, int x, int y);
  void CopyPartKeyed(const Picture& picture, const Rect& from, int x, int y);

  std::vector<Pixel> pixels_;
  RowCopier copyRows_;
};

}  // namespace coilrun
