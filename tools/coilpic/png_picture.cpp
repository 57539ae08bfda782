#include "png_picture.h"

#include <iterator>

#include <png.h>

namespace coilrun {
namespace {

constexpr std::uint32_t kLargestSide = 8192;
constexpr std::size_t kHeaderSize = 54;

void AddNumber(Bytes& bytes, std::size_t value, int size) {
  for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i));
}

}  // namespace

Picture ReadPng(const std::string& file) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  Picture picture;
  if (png_image_begin_read_from_file(&image, file.c_str()) == 0) {
    picture.problem = std::data(image.message);
    return picture;
  }
  if (image.width > kLargestSide || image.height > kLargestSide) {
    png_image_free(&image);
    picture.problem = "larger than 8192 pixels a side";
    return picture;
  }
  image.format = PNG_FORMAT_RGB;
  picture.width = static_cast<int>(image.width);
  picture.height = static_cast<int>(image.height);
  picture.pixels.resize(PNG_IMAGE_SIZE(image));
  const png_color black{};
  if (png_image_finish_read(&image, &black, picture.pixels.data(), 0, nullptr) == 0)
    picture.problem = std::data(image.message);
  return picture;
}

Bytes EncodeBmp(const Picture& picture) {
  const auto width = static_cast<std::size_t>(picture.width);
  const auto height = static_cast<std::size_t>(picture.height);
  const std::size_t rowSize = (width * 3 + 3) / 4 * 4;
  const std::size_t size = kHeaderSize + rowSize * height;
  Bytes bytes = {'B', 'M'};
  bytes.reserve(size);
  AddNumber(bytes, size, 4);
  AddNumber(bytes, 0, 4);
  AddNumber(bytes, kHeaderSize, 4);
  AddNumber(bytes, 40, 4);
  AddNumber(bytes, width, 4);
  AddNumber(bytes, height, 4);
  AddNumber(bytes, 1, 2);
  AddNumber(bytes, 24, 2);
  AddNumber(bytes, 0, 4);
  AddNumber(bytes, rowSize * height, 4);
  AddNumber(bytes, 0, 8);
  AddNumber(bytes, 0, 8);
  for (std::size_t row = height; row-- > 0;) {
    for (std::size_t column = 0; column < width; ++column) {
      const std::uint8_t* const pixel = &picture.pixels[(row * width + column) * 3];
      bytes.insert(bytes.end(), {pixel[2], pixel[1], pixel[0]});
    }
    bytes.resize(bytes.size() + rowSize - width * 3);
  }
  return bytes;
}

}  // namespace coilrun
