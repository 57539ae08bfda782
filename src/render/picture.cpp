#include "render/picture.h"

#include <utility>

#include "ports/screen.h"

namespace coilrun {
namespace {

void FillGroup(OpaquePieces& pieces) {
  if (pieces.places.empty()) return;
  const std::size_t size = pieces.pixels.size() / pieces.places.size();
  while (pieces.places.size() % kPieceGroup != 0) {
    pieces.places.push_back(pieces.places.back());
    for (std::size_t i = 0; i < size; ++i) {
      pieces.pixels.push_back(pieces.pixels[pieces.pixels.size() - size]);
    }
  }
}

}  // namespace

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
  FillGroup(eights_);
  FillGroup(fours_);
  FillGroup(twos_);
  FillGroup(ones_);
}

/// Cuts a run into pieces, the largest first. A rest of three pixels or of five to seven is copied
/// by a piece that reaches back over pixels copied before: a few pixels twice, but in fewer steps.
void Picture::AddRun(int x, int y, int length) {
  opaque_ += length;
  const int end = x + length;
  for (; x + 8 <= end; x += 8) AddPiece(eights_, 8, x, y);
  const int rest = end - x;
  if (rest > 4 && length >= 8) {
    AddPiece(eights_, 8, end - 8, y);
  } else if (rest > 4) {
    AddPiece(fours_, 4, x, y);
    AddPiece(fours_, 4, end - 4, y);
  } else if (rest >= 3 && length >= 4) {
    AddPiece(fours_, 4, end - 4, y);
  } else if (rest >= 2) {
    AddPiece(twos_, 2, x, y);
    if (rest == 3) AddPiece(ones_, 1, end - 1, y);
  } else if (rest == 1) {
    AddPiece(ones_, 1, x, y);
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
