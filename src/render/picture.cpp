#include "render/picture.h"

#include <algorithm>
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

void Picture::AddRun(int x, int y, int length) {
  const auto size =
      static_cast<std::size_t>(std::ranges::lower_bound(kRunSizes, length) - kRunSizes.begin());
  if (opaque_.groups.empty() || opaque_.groups.back().size != size) {
    opaque_.groups.push_back({size, 0});
  }
  ++opaque_.groups.back().count;
  opaque_.runs.push_back(
      {static_cast<std::uint32_t>(y * kScreenWidth + x), static_cast<std::uint32_t>(length)});
  const auto first = bitmap_.pixels.begin() + (static_cast<std::ptrdiff_t>(y) * Width() + x);
  opaque_.pixels.insert(opaque_.pixels.end(), first, first + length);
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
