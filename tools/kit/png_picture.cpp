#include "kit/png_picture.h"

#include <iterator>

#include <png.h>

namespace coilrun {
namespace {

/// The game does not read larger bitmaps.
constexpr std::uint32_t kLargestSide = 4096;

}  // namespace

PngPicture DecodePng(std::span<const std::uint8_t> file) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  PngPicture picture;
  if (png_image_begin_read_from_memory(&image, file.data(), file.size()) == 0) {
    picture.problem = std::data(image.message);
    return picture;
  }
  if (image.width > kLargestSide || image.height > kLargestSide) {
    png_image_free(&image);
    picture.problem = "larger than 4096 pixels on a side";
    return picture;
  }
  picture.hasOpacity = (image.format & PNG_FORMAT_FLAG_ALPHA) != 0;
  image.format = PNG_FORMAT_RGBA;
  picture.width = static_cast<int>(image.width);
  picture.height = static_cast<int>(image.height);
  picture.pixels.resize(PNG_IMAGE_SIZE(image));
  if (png_image_finish_read(&image, nullptr, picture.pixels.data(), 0, nullptr) == 0) {
    picture.problem = std::data(image.message);
  }
  return picture;
}

}  // namespace coilrun
