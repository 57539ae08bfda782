#include "platform/png_file.h"

#include <png.h>

namespace coilrun {
namespace {

constexpr png_uint_32 kLargestIcon = 1024;

/// A picture that libpng holds, released at the end of its scope.
struct PngImage {
  PngImage() { image.version = PNG_IMAGE_VERSION; }
  ~PngImage() { png_image_free(&image); }
  PngImage(const PngImage&) = delete;
  PngImage& operator=(const PngImage&) = delete;

  png_image image{};
};

std::vector<std::uint8_t> ToRgb(ScreenPixels pixels) {
  std::vector<std::uint8_t> rgb;
  rgb.reserve(pixels.size() * 3);
  for (const std::uint32_t pixel : pixels) {
    for (const unsigned shift : {16U, 8U, 0U})
      rgb.push_back(static_cast<std::uint8_t>(pixel >> shift));
  }
  return rgb;
}

}  // namespace

bool WritePng(const std::filesystem::path& file, ScreenPixels pixels) {
  PngImage png;
  png.image.width = kScreenWidth;
  png.image.height = kScreenHeight;
  png.image.format = PNG_FORMAT_RGB;
  png.image.flags = PNG_IMAGE_FLAG_FAST;
  const auto rgb = ToRgb(pixels);
  return png_image_write_to_file(&png.image, file.c_str(), 0, rgb.data(), 0, nullptr) != 0;
}

std::optional<Icon> ReadIcon(const std::filesystem::path& file) {
  PngImage png;
  if (png_image_begin_read_from_file(&png.image, file.c_str()) == 0) return std::nullopt;
  if (png.image.width > kLargestIcon || png.image.height > kLargestIcon) return std::nullopt;
  png.image.format = PNG_FORMAT_BGRA;
  Icon icon{static_cast<int>(png.image.width), static_cast<int>(png.image.height), {}};
  icon.pixels.resize(std::size_t{png.image.width} * png.image.height);
  if (png_image_finish_read(&png.image, nullptr, icon.pixels.data(), 0, nullptr) == 0)
    return std::nullopt;
  return icon;
}

}  // namespace coilrun
