#pragma once

#include <cstdint>
#include <vector>

#include "render/pixels.h"

namespace coilrun {

inline constexpr int kWidestRow = 24;

/// Rows of one width. They are copied in the same steps, without a decision.
struct RowGroup {
  std::uint16_t width;  ///< pixels, 1 to kWidestRow
  bool stacked;         ///< each starts right below the one before
  std::uint32_t rows;   ///< at least 1
};

/// Rows of pixels to be copied onto a screen, those of one width together. A longer row is cut up.
struct PixelRows {
  std::vector<RowGroup> groups;
  /// Where each row starts on the screen, in pixels from a place that the copying names; of stacked
  /// rows only the first.
  std::vector<std::uint32_t> places;
  /// Those of all rows, side by side.
  std::vector<Pixel> pixels;
};

/// Copies rows to their places from `to` on.
using RowCopier = void (*)(const PixelRows& rows, Pixel* to);

/// All that this processor can run, the fastest first. They do the same.
std::vector<RowCopier> RowCopiers();

}  // namespace coilrun
