#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "render/pixels.h"

namespace coilrun {

/// Decoded pixels, row by row from the top.
struct Bitmap {
  int width = 0;
  int height = 0;
  std::vector<Pixel> pixels;
};

/// Decodes an uncompressed Windows bitmap of 1, 4, 8, 24 or 32 bits per pixel, stored bottom-up or
/// top-down. Nothing when the bytes are no such bitmap, end too early, or ask for more than 4096
/// pixels on a side or 4 million in all.
std::optional<Bitmap> DecodeBmp(std::span<const std::uint8_t> file);

/// The bitmap scaled to another size by nearest neighbour.
Bitmap Resized(const Bitmap& bitmap, int width, int height);

}  // namespace coilrun
