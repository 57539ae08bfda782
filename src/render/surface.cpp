#include "render/surface.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace coilrun {
namespace {

constexpr Rect kScreen{0, 0, kScreenWidth, kScreenHeight};

constexpr Rect At(const Rect& size, int x, int y) {
  return {x, y, x + size.Width(), y + size.Height()};
}

template <std::size_t kPixels>
void CopyPixels(const Pixel* from, Pixel* to) {
  std::memcpy(to, from, kPixels * sizeof(Pixel));
}

/// Copies runs in pieces of `kPiece` pixels: `kPieces` of them from the start, and one that ends
/// where the run ends. That one may reach back over pixels copied before, never beyond the run.
/// Returns where the pixels of the next run lie.
template <std::size_t kPiece, std::size_t kPieces>
const Pixel* CopyRuns(std::span<const OpaqueRun> runs, const Pixel* from, Pixel* to) {
  for (const auto [place, length] : runs) {
    Pixel* const start = to + place;
    for (std::size_t at = 0; at < kPieces * kPiece; at += kPiece) {
      CopyPixels<kPiece>(from + at, start + at);
    }
    CopyPixels<kPiece>(from + length - kPiece, start + length - kPiece);
    from += length;
  }
  return from;
}

const Pixel* CopyLongRuns(std::span<const OpaqueRun> runs, const Pixel* from, Pixel* to) {
  for (const auto [place, length] : runs) {
    std::memcpy(to + place, from, length * sizeof(Pixel));
    from += length;
  }
  return from;
}

/// By size of the runs.
constexpr std::array<decltype(&CopyLongRuns), kRunSizes.size() + 1> kCopy = {
    CopyRuns<1, 0>, CopyRuns<2, 1>, CopyRuns<4, 0>, CopyRuns<4, 1>,
    CopyRuns<4, 2>, CopyRuns<4, 3>, CopyRuns<4, 4>, CopyLongRuns};

constexpr Pixel Mix(Pixel below, Color color, unsigned coverage) {
  const auto channel = [coverage](unsigned under, unsigned over) {
    return (under * (255 - coverage) + over * coverage + 127) / 255;
  };
  return channel(below >> 16 & 0xFF, color.red) << 16 |
         channel(below >> 8 & 0xFF, color.green) << 8 | channel(below & 0xFF, color.blue);
}

}  // namespace

Surface::Surface() : pixels_(kScreenPixels, 0) {}

Pixel* Surface::At(int x, int y) {
  return pixels_.data() + static_cast<std::ptrdiff_t>(y) * kScreenWidth + x;
}

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

void Surface::Blit(const Picture& picture, int x, int y) {
  if (!kScreen.Holds(coilrun::At(picture.Bounds(), x, y))) return;
  const OpaqueRuns& opaque = picture.Opaque();
  Pixel* const to = At(x, y);
  const Pixel* from = opaque.pixels.data();
  const OpaqueRun* run = opaque.runs.data();
  for (const auto [size, count] : opaque.groups) {
    from = kCopy[size]({run, count}, from, to);
    run += count;
  }
}

void Surface::Blit(const Picture& picture, const Rect& from, int x, int y, bool keyed) {
  if (keyed && from == picture.Bounds()) {
    Blit(picture, x, y);
  } else if (picture.Bounds().Holds(from) && kScreen.Holds(coilrun::At(from, x, y))) {
    keyed ? CopyKeyed(picture, from, x, y) : CopyRows(picture, from, x, y);
  }
}

void Surface::CopyRows(const Picture& picture, const Rect& from, int x, int y) {
  const Pixel* source =
      picture.Pixels().data() + static_cast<std::ptrdiff_t>(from.top) * picture.Width() + from.left;
  const bool wholeRows = from.Width() == kScreenWidth && picture.Width() == kScreenWidth;
  const int rows = wholeRows ? 1 : from.Height();
  const int pixels = wholeRows ? kScreenWidth * from.Height() : from.Width();
  for (int row = 0; row < rows; ++row, source += picture.Width()) {
    std::memcpy(At(x, y + row), source, static_cast<std::size_t>(pixels) * sizeof(Pixel));
  }
}

void Surface::CopyKeyed(const Picture& picture, const Rect& from, int x, int y) {
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
