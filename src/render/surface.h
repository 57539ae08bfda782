#pragma once

#include <span>
#include <vector>

#include "ports/screen.h"
#include "ports/text_face.h"
#include "render/picture.h"

namespace coilrun {

/// One buffer of the size of the screen. Pictures are never clipped: one that does not lie wholly
/// on the screen, or is unset, or whose source rectangle leaves it, is not drawn at all.
class Surface {
 public:
  Surface();

  void Fill(Color color);
  /// Fills the part of the rectangle that lies on the screen.
  void FillRect(const Rect& rect, Color color);
  /// Draws the whole picture with its colour key.
  void Blit(const Picture& picture, int x, int y);
  /// Draws a part of the picture, with or without its colour key.
  void Blit(const Picture& picture, const Rect& from, int x, int y, bool keyed);
  /// Lays a text over the pixels; what leaves the screen is cut off.
  void BlendText(const TextMask& mask, int x, int y, Color color);

  ScreenPixels Pixels() const { return ScreenPixels{pixels_}; }
  std::span<Pixel, kScreenPixels> Pixels() { return std::span<Pixel, kScreenPixels>{pixels_}; }

 private:
  Pixel* At(int x, int y);
  void CopyRows(const Picture& picture, const Rect& from, int x, int y);
  void CopyKeyed(const Picture& picture, const Rect& from, int x, int y);

  std::vector<Pixel> pixels_;
};

}  // namespace coilrun
