#include "kit/game_picture.h"

#include <string>

#include "ports/windows_1252.h"
#include "render/item_pictures.h"

namespace coilrun {
namespace {

constexpr std::size_t kHeaderSize = 54;
constexpr std::size_t kBytesAPixel = 4;
constexpr std::uint8_t kHalfOpaque = 128;

void AddNumber(Bytes& bytes, std::size_t value, int size) {
  for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i));
}

Bytes Header(std::size_t width, std::size_t height, std::size_t dataSize) {
  Bytes bytes = {'B', 'M'};
  bytes.reserve(kHeaderSize + dataSize);
  AddNumber(bytes, kHeaderSize + dataSize, 4);
  AddNumber(bytes, 0, 4);
  AddNumber(bytes, kHeaderSize, 4);
  AddNumber(bytes, 40, 4);
  AddNumber(bytes, width, 4);
  AddNumber(bytes, height, 4);
  AddNumber(bytes, 1, 2);
  AddNumber(bytes, 24, 2);
  AddNumber(bytes, 0, 4);
  AddNumber(bytes, dataSize, 4);
  AddNumber(bytes, 0, 8);
  AddNumber(bytes, 0, 8);
  return bytes;
}

/// A colour that is transparent under the key, and the visible one next to it.
struct KeyColors {
  Color key;
  Color visible;
};

constexpr KeyColors ColorsOf(KeyMode key) {
  switch (key) {
    case KeyMode::kGrey131:
      return {{131, 131, 131}, {132, 132, 132}};
    case KeyMode::kGrey128:
      return {{128, 128, 128}, {129, 129, 129}};
    case KeyMode::kBlack:
      break;
  }
  return {{0, 0, 0}, {11, 11, 11}};
}

Color ShownColor(const std::uint8_t* pixel, bool hasOpacity, KeyMode key) {
  const Color color{pixel[0], pixel[1], pixel[2]};
  if (!hasOpacity) return color;
  if (pixel[3] < kHalfOpaque) return ColorsOf(key).key;
  return IsTransparent(key, color.ToPixel()) ? ColorsOf(key).visible : color;
}

}  // namespace

bool IsPngName(std::string_view name) {
  return FoldCase(name).ends_with(".png");
}

KeyMode KeyOf(std::string_view name) {
  const std::size_t end = name.rfind('/');
  if (end == name.npos) return KeyMode::kBlack;
  const std::string_view path = name.substr(0, end);
  const std::string folder = FoldCase(path.substr(path.rfind('/') + 1)) + "\\";
  for (int number = 0; number < kItemKinds; ++number) {
    const auto kind = static_cast<ItemKind>(number);
    if (folder == FoldCase(FrameFolder(kind))) return FrameKey(kind);
  }
  return KeyMode::kBlack;
}

Bytes GameBmp(const PngPicture& picture, KeyMode key) {
  const auto width = static_cast<std::size_t>(picture.width);
  const auto height = static_cast<std::size_t>(picture.height);
  const std::size_t rowSize = (width * 3 + 3) / 4 * 4;
  Bytes bytes = Header(width, height, rowSize * height);
  for (std::size_t row = height; row-- > 0;) {
    for (std::size_t column = 0; column < width; ++column) {
      const std::uint8_t* const pixel = &picture.pixels[(row * width + column) * kBytesAPixel];
      const Color color = ShownColor(pixel, picture.hasOpacity, key);
      bytes.insert(bytes.end(), {color.blue, color.green, color.red});
    }
    bytes.resize(bytes.size() + rowSize - width * 3);
  }
  return bytes;
}

bool HasTransparentPixels(const PngPicture& picture) {
  for (std::size_t at = 3; picture.hasOpacity && at < picture.pixels.size(); at += kBytesAPixel) {
    if (picture.pixels[at] < kHalfOpaque) return true;
  }
  return false;
}

}  // namespace coilrun
