#pragma once

#include <string>

#include <png.h>

namespace coilrun {

/// A PNG file; the pixels are red, green, blue and, with four bytes per pixel, opacity.
inline std::string PngFile(unsigned width, unsigned height, const std::string& pixels) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = width;
  image.height = height;
  const bool hasOpacity = pixels.size() == std::size_t{width} * height * 4;
  image.format = hasOpacity ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
  png_alloc_size_t size = 0;
  png_image_write_to_memory(&image, nullptr, &size, 0, pixels.data(), 0, nullptr);
  std::string file(size, '\0');
  png_image_write_to_memory(&image, file.data(), &size, 0, pixels.data(), 0, nullptr);
  file.resize(size);
  return file;
}

/// A PNG file of a single colour, given by three or four bytes.
inline std::string PlainPng(unsigned width, unsigned height, const std::string& color) {
  std::string pixels;
  for (unsigned i = 0; i < width * height; ++i) pixels += color;
  return PngFile(width, height, pixels);
}

}  // namespace coilrun
