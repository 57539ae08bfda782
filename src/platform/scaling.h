#pragma once

#include <cstdint>
#include <span>

#include "ports/screen.h"

namespace coilrun {

struct Area {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  bool operator==(const Area&) const = default;
};

/// Where a window of this size shows the screen: centred, scaled by a whole number when that fills
/// the window well, else as large as fits.
Area PictureArea(int windowWidth, int windowHeight);

/// Pixels of a window; `stride` counts pixels from one row to the next.
struct Canvas {
  std::span<std::uint32_t> pixels;
  int stride = 0;
};

/// Draws the screen rows `firstRow` to `lastRow` into `area` by nearest neighbours.
void ScaleRows(ScreenPixels screen, int firstRow, int lastRow, const Area& area,
               const Canvas& canvas);

}  // namespace coilrun
