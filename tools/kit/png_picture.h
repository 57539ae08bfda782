#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "ports/bytes.h"

namespace coilrun {

/// A decoded PNG picture: red, green, blue and opacity, row by row from the top. `problem` says in
/// words why there is none.
struct PngPicture {
  int width = 0;
  int height = 0;
  bool hasOpacity = false;  ///< the file says how opaque its pixels are; otherwise all are opaque
  Bytes pixels;
  std::string problem;
};

/// Decodes a PNG file of at most 4096 x 4096 pixels.
PngPicture DecodePng(std::span<const std::uint8_t> file);

}  // namespace coilrun
