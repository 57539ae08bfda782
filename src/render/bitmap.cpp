#include "render/bitmap.h"

#include <algorithm>
#include <array>

#include "ports/byte_reader.h"

namespace coilrun {
namespace {

constexpr int kMaxSide = 4096;
constexpr std::int64_t kMaxPixels = std::int64_t{4} * 1024 * 1024;
constexpr std::size_t kFileHeader = 14;
constexpr std::uint32_t kCoreHeader = 12;
constexpr std::uint32_t kInfoHeader = 40;
constexpr std::uint16_t kMagic = 0x4D42;
/// The two kinds of compression that are none: plain, and with channel masks.
constexpr std::uint32_t kPlain = 0;
constexpr std::uint32_t kMasks = 3;

struct Layout {
  int width = 0;
  int height = 0;
  bool topDown = false;
  int bits = 0;
  std::size_t dataOffset = 0;
  std::vector<Pixel> palette;

  std::size_t RowBits() const {
    return static_cast<std::size_t>(width) * static_cast<unsigned>(bits);
  }
  std::size_t Stride() const { return (RowBits() + 31) / 32 * 4; }
};

bool IsKnownDepth(int bits) {
  constexpr std::array kDepths = {1, 4, 8, 24, 32};
  return std::find(kDepths.begin(), kDepths.end(), bits) != kDepths.end();
}

bool IsAllowedSize(std::int64_t width, std::int64_t height) {
  return width > 0 && height > 0 && width <= kMaxSide && height <= kMaxSide &&
         width * height <= kMaxPixels;
}

/// Masks are accepted only when they name the usual places of red, green and blue.
bool HasUsualMasks(ByteReader& reader) {
  return reader.U32() == 0xFF0000 && reader.U32() == 0xFF00 && reader.U32() == 0xFF;
}

void ReadPalette(ByteReader& reader, Layout& layout, std::uint32_t used, bool core) {
  if (layout.bits > 8) return;
  const std::uint32_t full = 1U << layout.bits;
  const std::uint32_t count = used == 0 ? full : std::min(used, full);
  layout.palette.assign(full, 0);
  for (std::uint32_t i = 0; i < count; ++i) {
    const std::uint8_t blue = reader.U8();
    const std::uint8_t green = reader.U8();
    layout.palette[i] = Color{reader.U8(), green, blue}.ToPixel();
    if (!core) reader.Skip(1);
  }
}

/// Reads sizes, depth and compression from the longer headers; returns the number of palette
/// colours, or nothing when the picture is of no kind that is read here.
std::optional<std::uint32_t> ReadInfoHeader(ByteReader& reader, Layout& layout,
                                            std::int64_t& height) {
  layout.width = reader.I32();
  height = reader.I32();
  reader.Skip(2);
  layout.bits = reader.U16();
  const std::uint32_t compression = reader.U32();
  reader.Skip(12);
  const std::uint32_t used = reader.U32();
  reader.Skip(4);
  const bool masks = compression == kMasks && layout.bits == 32;
  if (compression != kPlain && !(masks && HasUsualMasks(reader))) return std::nullopt;
  return used;
}

std::optional<Layout> ReadLayout(std::span<const std::uint8_t> file) {
  ByteReader reader(file);
  Layout layout;
  if (reader.U16() != kMagic) return std::nullopt;
  reader.Skip(8);
  layout.dataOffset = reader.U32();
  const std::uint32_t headerSize = reader.U32();
  const bool core = headerSize == kCoreHeader;
  std::int64_t height = 0;
  std::optional<std::uint32_t> used = 0;
  if (core) {
    layout.width = reader.U16();
    height = reader.U16();
    reader.Skip(2);
    layout.bits = reader.U16();
  } else if (headerSize >= kInfoHeader) {
    used = ReadInfoHeader(reader, layout, height);
  }
  layout.topDown = height < 0;
  height = layout.topDown ? -height : height;
  if (!used || !IsKnownDepth(layout.bits) || !IsAllowedSize(layout.width, height)) {
    return std::nullopt;
  }
  layout.height = static_cast<int>(height);
  reader.Seek(kFileHeader + headerSize);
  ReadPalette(reader, layout, *used, core);
  if (!reader.Ok()) return std::nullopt;
  return layout;
}

Pixel PixelAt(std::span<const std::uint8_t> row, const Layout& layout, int x) {
  const auto bits = static_cast<std::size_t>(layout.bits);
  const std::size_t bit = static_cast<std::size_t>(x) * bits;
  const std::size_t byte = bit / 8;
  if (bits > 8) return Color{row[byte + 2], row[byte + 1], row[byte]}.ToPixel();
  const unsigned index = row[byte] >> (8 - bits - bit % 8) & ((1U << bits) - 1);
  return layout.palette[index];
}

}  // namespace

std::optional<Bitmap> DecodeBmp(std::span<const std::uint8_t> file) {
  const auto layout = ReadLayout(file);
  if (!layout) return std::nullopt;
  const auto rows = static_cast<std::size_t>(layout->height);
  // The last row's padding may be missing: some programs save without it.
  const std::size_t rowBytes = (layout->RowBits() + 7) / 8;
  const std::size_t needed = layout->Stride() * (rows - 1) + rowBytes;
  ByteReader reader(file);
  reader.Seek(layout->dataOffset);
  const auto data = reader.Take(needed);
  if (!reader.Ok()) return std::nullopt;

  Bitmap bitmap{layout->width, layout->height, {}};
  bitmap.pixels.reserve(rows * static_cast<std::size_t>(layout->width));
  for (std::size_t y = 0; y < rows; ++y) {
    const std::size_t stored = layout->topDown ? y : rows - 1 - y;
    const auto row = data.subspan(stored * layout->Stride(), rowBytes);
    for (int x = 0; x < layout->width; ++x) bitmap.pixels.push_back(PixelAt(row, *layout, x));
  }
  return bitmap;
}

Bitmap Resized(const Bitmap& bitmap, int width, int height) {
  Bitmap resized{width, height, {}};
  resized.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    const int row = y * bitmap.height / height * bitmap.width;
    for (int x = 0; x < width; ++x) {
      const int at = row + x * bitmap.width / width;
      resized.pixels.push_back(bitmap.pixels[static_cast<std::size_t>(at)]);
    }
  }
  return resized;
}

}  // namespace coilrun
