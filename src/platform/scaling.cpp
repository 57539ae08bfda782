#include "platform/scaling.h"

#include <algorithm>
#include <cmath>

namespace coilrun {
namespace {

/// A whole-number scale is used when it gives at least this part of the largest possible picture:
/// sharp pixels are worth a border, but not a tiny picture.
constexpr double kWellFilled = 0.8;

}  // namespace

Area PictureArea(int windowWidth, int windowHeight) {
  const double fit = std::min(static_cast<double>(windowWidth) / kScreenWidth,
                              static_cast<double>(windowHeight) / kScreenHeight);
  const double whole = static_cast<int>(fit);
  const double scale = whole >= fit * kWellFilled ? whole : fit;
  const int width = std::max(1, static_cast<int>(std::lround(kScreenWidth * scale)));
  const int height = std::max(1, static_cast<int>(std::lround(kScreenHeight * scale)));
  return {(windowWidth - width) / 2, (windowHeight - height) / 2, width, height};
}

std::optional<ScreenPlace> PlaceOnScreen(const Area& picture, int x, int y) {
  const int across = x - picture.x;
  const int down = y - picture.y;
  if (across < 0 || across >= picture.width || down < 0 || down >= picture.height) return {};
  return ScreenPlace{across * kScreenWidth / picture.width, down * kScreenHeight / picture.height};
}

RowRange CanvasRows(const RowRange& screenRows, const Area& area) {
  const auto firstShowing = [&](int screenRow) {
    return (screenRow * area.height + kScreenHeight - 1) / kScreenHeight;
  };
  return {firstShowing(screenRows.first), firstShowing(screenRows.end)};
}

void Scaler::Draw(ScreenPixels screen, const RowRange& canvasRows, const Area& area,
                  const Canvas& canvas) {
  if (static_cast<int>(columns_.size()) != area.width) MapColumns(area.width);
  const auto width = static_cast<std::size_t>(area.width);
  std::span<std::uint32_t> above;
  int aboveRow = -1;
  for (int y = canvasRows.first; y < canvasRows.end; ++y) {
    const int screenRow = y * kScreenHeight / area.height;
    const auto start =
        static_cast<std::size_t>(area.y + y) * static_cast<std::size_t>(canvas.stride) +
        static_cast<std::size_t>(area.x);
    const auto row = canvas.pixels.subspan(start, width);
    if (screenRow == aboveRow) {
      std::copy(above.begin(), above.end(), row.begin());
    } else {
      const auto from = screen.subspan(static_cast<std::size_t>(screenRow) * kScreenWidth);
      std::transform(columns_.begin(), columns_.end(), row.begin(),
                     [&](std::uint16_t column) { return from[column]; });
    }
    above = row;
    aboveRow = screenRow;
  }
}

void Scaler::MapColumns(int width) {
  columns_.resize(static_cast<std::size_t>(width));
  for (int x = 0; x < width; ++x)
    columns_[static_cast<std::size_t>(x)] = static_cast<std::uint16_t>(x * kScreenWidth / width);
}

RowRange ChangedRows(ScreenPixels before, ScreenPixels after) {
  const auto rowsEqual = [&](int row) {
    const auto start = static_cast<std::size_t>(row) * kScreenWidth;
    const auto one = before.subspan(start, kScreenWidth);
    return std::equal(one.begin(), one.end(), after.subspan(start, kScreenWidth).begin());
  };
  RowRange changed{0, kScreenHeight};
  while (changed.first < changed.end && rowsEqual(changed.first)) ++changed.first;
  while (changed.end > changed.first && rowsEqual(changed.end - 1)) --changed.end;
  return changed;
}

}  // namespace coilrun
