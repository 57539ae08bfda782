#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "ports/screen.h"

namespace coilrun {

/// Writes a picture of the screen as an RGB file; false, and no file, when that is not possible.
bool WritePng(const std::filesystem::path& file, ScreenPixels pixels);

/// A picture with its opacity: 0xAARRGGBB, row by row.
struct Icon {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

/// Reads a picture of at most 1024 x 1024 pixels; nothing when there is no such file.
std::optional<Icon> ReadIcon(const std::filesystem::path& file);

}  // namespace coilrun
