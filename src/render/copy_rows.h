#pragma once

#include <cstdint>
#include <vector>

#include "render/pixels.h"

namespace coilrun {

inline constexpr int kWidestRow = 24;

/// Rows of one width, which are all copied in the same steps without branching.
struct RowGroup {
  std::uint16_t width;  ///< pixels, 1 to kWidestRow
  bool stacked;         ///< each starts right below the previous one
  std::uint32_t rows;   ///< at least 1
};

/// Rows of pixels to be copied onto a screen, grouped by width. Rows that are too wide are cut up.
struct PixelRows {
  std::vector<RowGroup> groups;
  /// Where each row starts on the screen, in pixels from a place that the copier is given; of
  /// stacked rows only the first.
  std::vector<std::uint32_t> places;
  /// The pixels of all rows, one after the other.
  std::vector<Pixel> pixels;
};

/// Copies rows to their places from `to` on.
using RowCopier = void (*)(const PixelRows& rows, Pixel* to);

/// All copiers that this processor can run, the fastest first. They all do the same.
std::vector<RowCopier> RowCopiers();

}  // namespace coilrun
