#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "ports/screen.h"

namespace coilrun {

struct Area {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  bool operator==(const Area&) const = default;
};

/// A pixel of the screen.
struct ScreenPlace {
  int x = 0;
  int y = 0;

  bool operator==(const ScreenPlace&) const = default;
};

/// Rows from `first` up to, but not including, `end`.
struct RowRange {
  int first = 0;
  int end = 0;

  bool operator==(const RowRange&) const = default;
};

/// Pixels of a window; `stride` counts pixels from one row to the next.
struct Canvas {
  std::span<std::uint32_t> pixels;
  int stride = 0;
};

/// Where a window of this size (at least 1 x 1) shows the screen: centred, and scaled by a whole
/// number if that fills the window well, otherwise as large as fits.
Area PictureArea(int windowWidth, int windowHeight);

/// The pixel of the screen that is shown at a place in the window; nothing outside the picture.
std::optional<ScreenPlace> PlaceOnScreen(const Area& picture, int x, int y);

/// The screen rows that differ between two pictures; an empty range when none does.
RowRange ChangedRows(ScreenPixels before, ScreenPixels after);

/// The rows of the area, counted from its top, that show these screen rows.
RowRange CanvasRows(const RowRange& screenRows, const Area& area);

/// Draws the screen into an area of a canvas by nearest neighbours.
class Scaler {
 public:
  /// Draws the given rows of the area; the whole area lies on the canvas.
  void Draw(ScreenPixels screen, const RowRange& canvasRows, const Area& area,
            const Canvas& canvas);

 private:
  void MapColumns(int width);

  std::vector<std::uint16_t> columns_;
};

}  // namespace coilrun
