#include "render/picture.h"

#include <utility>

#include "ports/screen.h"

namespace coilrun {

Picture::Picture(Bitmap bitmap, KeyMode key) : bitmap_(std::move(bitmap)), key_(key) {
  for (int y = 0; y < Height(); ++y) {
    const Pixel* const row = bitmap_.pixels.data() + static_cast<std::ptrdiff_t>(y) * Width();
    for (int x = 0; x < Width();) {
      const int start = x;
      while (x < Width() && !IsTransparent(key_, row[x])) ++x;
      if (x > start) AddRun(start, y, x - start);
      ++x;
    }
  }
}

/// Cuts a run into pieces. The last piece of four or two reaches back over the one before it rather
/// than leave a rest: a few pixels are copied twice, but in fewer steps.
void Picture::AddRun(int x, int y, int length) {
  opaque_ += length;
  const int end = x + length;
  if (length == 1) {
    AddPiece(ones_, 1, x, y);
  } else if (length < 4) {
    AddPiece(twos_, 2, x, y);
    if (length == 3) AddPiece(ones_, 1, end - 1, y);
  } else {
    for (; x + 4 <= end; x += 4) AddPiece(fours_, 4, x, y);
    if (x < end) AddPiece(fours_, 4, end - 4, y);
  }
}

void Picture::AddPiece(OpaquePieces& pieces, int size, int x, int y) {
  pieces.places.push_back(static_cast<std::uint32_t>(y * kScreenWidth + x));
  const auto first = bitmap_.pixels.begin() + (static_cast<std::ptrdiff_t>(y) * Width() + x);
  pieces.pixels.insert(pieces.pixels.end(), first, first + size);
}

Picture Picture::Cut(const Rect& part) const {
  if (!Bounds().Holds(part)) return {};
  Bitmap cut{part.Width(), part.Height(), {}};
  for (int y = part.top; y < part.bottom; ++y) {
    const auto row = bitmap_.pixels.begin() + static_cast<std::ptrdiff_t>(y) * Width();
    cut.pixels.insert(cut.pixels.end(), row + part.left, row + part.right);
  }
  return {std::move(cut), key_};
}

}  // namespace coilrun
