#include "render/picture.h"

#include <algorithm>
#include <bit>
#include <map>
#include <utility>

#include "model/records.h"
#include "ports/screen.h"

namespace coilrun {
namespace {

/// Where runs of opaque pixels start, by their width.
using StartsByWidth = std::map<int, std::vector<Point>>;

StartsByWidth FindOpaque(const Bitmap& bitmap, KeyMode key) {
  StartsByWidth starts;
  for (int y = 0; y < bitmap.height; ++y) {
    const Pixel* const row = bitmap.pixels.data() + static_cast<std::ptrdiff_t>(y) * bitmap.width;
    for (int x = 0; x < bitmap.width;) {
      const int start = x;
      const int end = std::min(start + kWidestRow, bitmap.width);
      while (x < end && !IsTransparent(key, row[x])) ++x;
      if (x == start) {
        ++x;
      } else {
        starts[x - start].push_back({start, y});
      }
    }
  }
  return starts;
}

/// Cuts rows of a width that is rare in the picture into two overlapping rows of a common width:
/// switching between widths costs more than copying a few rows twice.
StartsByWidth JoinRareWidths(const StartsByWidth& starts) {
  constexpr std::size_t kRare = 3;
  constexpr int kNarrow = 4;
  StartsByWidth joined;
  for (const auto& [width, points] : starts) {
    const bool keep = points.size() >= kRare || width < kNarrow;
    const int part = keep ? width : static_cast<int>(std::bit_floor(unsigned(width)));
    for (const auto [x, y] : points) {
      joined[part].push_back({x, y});
      if (part < width) joined[part].push_back({x + width - part, y});
    }
  }
  return joined;
}

bool AreStacked(const std::vector<Point>& points) {
  constexpr std::size_t kWorthwhile = 4;
  if (points.size() < kWorthwhile) return false;
  const auto isNotBelow = [](Point above, Point point) {
    return point != Point{above.x, above.y + 1};
  };
  return std::ranges::adjacent_find(points, isNotBelow) == points.end();
}

PixelRows ToRows(const Bitmap& bitmap, const StartsByWidth& starts) {
  PixelRows rows;
  for (const auto& [width, points] : starts) {
    const bool stacked = AreStacked(points);
    rows.groups.push_back(
        {static_cast<std::uint16_t>(width), stacked, static_cast<std::uint32_t>(points.size())});
    for (const Point& start : points) {
      if (!stacked || start == points.front()) {
        rows.places.push_back(static_cast<std::uint32_t>(start.y * kScreenWidth + start.x));
      }
      const auto first =
          bitmap.pixels.begin() + static_cast<std::ptrdiff_t>(start.y) * bitmap.width + start.x;
      rows.pixels.insert(rows.pixels.end(), first, first + width);
    }
  }
  return rows;
}

}  // namespace

Picture::Picture(Bitmap bitmap, KeyMode key)
    : bitmap_(std::move(bitmap)),
      key_(key),
      opaque_(ToRows(bitmap_, JoinRareWidths(FindOpaque(bitmap_, key_)))) {}

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
