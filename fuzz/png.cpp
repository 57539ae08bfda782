#include <cstdint>
#include <cstdlib>
#include <span>

#include "kit/game_picture.h"
#include "platform/rar/checksums.h"
#include "render/bitmap.h"

namespace coilrun {
namespace {

std::uint32_t BigEndian(std::span<const std::uint8_t> bytes) {
  std::uint32_t value = 0;
  for (const std::uint8_t byte : bytes.first(4)) value = value << 8U | byte;
  return value;
}

/// Width and height stand at the same place in every file. Large pictures only cost time.
bool IsSmall(std::span<const std::uint8_t> file) {
  constexpr std::size_t kWidthAt = 16;
  constexpr std::uint32_t kMost = 64;
  if (file.size() < kWidthAt + 8) return true;
  const auto sizes = file.subspan(kWidthAt);
  return BigEndian(sizes) <= kMost && BigEndian(sizes.subspan(4)) <= kMost;
}

/// Puts the checksums of the chunks right, so that changed ones are looked into.
void RepairChunks(Bytes& file) {
  constexpr std::size_t kAround = 12;  // size and name in front of what a chunk holds, sum after it
  for (std::size_t at = 8; at < file.size() && file.size() - at >= kAround;) {
    const auto chunk = std::span(file).subspan(at);
    const std::size_t size = BigEndian(chunk);
    if (size > chunk.size() - kAround) return;
    const std::uint32_t sum = Crc32(chunk.subspan(4, size + 4));
    for (std::size_t i = 0; i < 4; ++i)
      chunk[size + 8 + i] = static_cast<std::uint8_t>(sum >> (24 - 8 * i));
    at += size + kAround;
  }
}

/// What can be decoded becomes a bitmap that the game reads, of the same size.
bool KeepsItsPromises(std::span<const std::uint8_t> file) {
  const PngPicture picture = DecodePng(file);
  if (!picture.problem.empty()) return true;
  const auto bitmap = DecodeBmp(GameBmp(picture, KeyMode::kBlack));
  return bitmap && bitmap->width == picture.width && bitmap->height == picture.height;
}

}  // namespace
}  // namespace coilrun

/// Any bytes as a painted picture.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  coilrun::Bytes file(data, data + size);
  coilrun::RepairChunks(file);
  if (coilrun::IsSmall(file) && !coilrun::KeepsItsPromises(file)) std::abort();
  return 0;
}
