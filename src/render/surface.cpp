#include "render/surface.h"

#include <algorithm>
#include <cstring>

namespace coilrun {
namespace {

constexpr Pixel Mix(Pixel below, Color color, unsigned coverage) {
  const auto channel = [coverage](unsigned under, unsigned over) {
    return (under * (255 - coverage) + over * coverage + 127) / 255;
  };
  return channel(below >> 16 & 0xFF, color.red) << 16 |
         channel(below >> 8 & 0xFF, color.green) << 8 | channel(below & 0xFF, color.blue);
}

}  // namespace

Surface::Surface() : pixels_(kScreenPixels, 0), copyRows_(RowCopiers().front()) {}

void Surface::Fill(Color color) {
  std::fill(pixels_.begin(), pixels_.end(), color.ToPixel());
}

void Surface::FillRect(const Rect& rect, Color color) {
  const int left = std::max(rect.left, 0);
  const int right = std::min(rect.right, kScreenWidth);
  if (left >= right) return;
  const int bottom = std::min(rect.bottom, kScreenHeight);
  for (int y = std::max(rect.top, 0); y < bottom; ++y) {
    std::fill_n(At(left, y), right - left, color.ToPixel());
  }
}

void Surface::CopyPart(const Picture& picture, const Rect& from, int x, int y) {
  const Pixel* source =
      picture.Pixels().data() + static_cast<std::ptrdiff_t>(from.top) * picture.Width() + from.left;
  const bool wholeRows = from.Width() == kScreenWidth && picture.Width() == kScreenWidth;
  const int rows = wholeRows ? 1 : from.Height();
  const int pixels = wholeRows ? kScreenWidth * from.Height() : from.Width();
  for (int row = 0; row < rows; ++row, source += picture.Width()) {
    std::memcpy(At(x, y + row), source, static_cast<std::size_t>(pixels) * sizeof(Pixel));
  }
}

void Surface::CopyPartKeyed(const Picture& picture, const Rect& from, int x, int y) {
  for (int row = 0; row < from.Height(); ++row) {
    const Pixel* const source = picture.Pixels().data() +
                                static_cast<std::ptrdiff_t>(from.top + row) * picture.Width() +
                                from.left;
    Pixel* const to = At(x, y + row);
    for (int column = 0; column < from.Width(); ++column) {
      if (!IsTransparent(picture.Key(), source[column])) to[column] = source[column];
    }
  }
}

void Surface::BlendText(const TextMask& mask, int x, int y, Color color) {
  const int left = std::max(0, -x);
  const int right = std::min(mask.width, kScreenWidth - x);
  const int bottom = std::min(mask.height, kScreenHeight - y);
  for (int row = std::max(0, -y); row < bottom; ++row) {
    const std::uint8_t* const coverage =
        mask.coverage.data() + static_cast<std::ptrdiff_t>(row) * mask.width;
    for (int column = left; column < right; ++column) {
      if (coverage[column] == 0) continue;
      Pixel& pixel = *At(x + column, y + row);
      pixel = Mix(pixel, color, coverage[column]);
    }
  }
}

}  // namespace coilrun
