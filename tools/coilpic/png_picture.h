#pragma once

#include <cstdint>
#include <string>

#include "ports/bytes.h"

namespace coilrun {

/// A picture of 24-bit colours: red, green, blue, row by row from the top. `problem` says in words
/// why there is none.
struct Picture {
  int width = 0;
  int height = 0;
  Bytes pixels;
  std::string problem;
};

/// Reads a PNG file of at most 8192 x 8192 pixels; what is transparent in it becomes black.
Picture ReadPng(const std::string& file);

/// The bytes of an uncompressed 24-bit BMP file.
Bytes EncodeBmp(const Picture& picture);

}  // namespace coilrun
