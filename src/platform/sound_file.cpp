#include "platform/sound_file.h"

#include <algorithm>
#include <string_view>

#include "ports/byte_reader.h"

namespace coilrun {
namespace {

bool IsText(std::span<const std::uint8_t> bytes, std::string_view text) {
  return std::equal(bytes.begin(), bytes.end(), text.begin(), text.end());
}

bool TakesText(ByteReader& reader, std::string_view text) {
  return IsText(reader.Take(text.size()), text);
}

struct WaveFormat {
  std::uint16_t kind = 0;
  std::uint16_t channels = 0;
  std::uint32_t rate = 0;
  std::uint16_t bits = 0;
};

constexpr std::uint16_t kPcm = 1;

bool IsPlayable(const WaveFormat& format) {
  return format.kind == kPcm && (format.channels == 1 || format.channels == 2) &&
         format.rate >= 1000 && format.rate <= 192'000 && (format.bits == 8 || format.bits == 16);
}

WaveFormat ReadFormat(std::span<const std::uint8_t> chunk) {
  ByteReader reader(chunk);
  WaveFormat format;
  format.kind = reader.U16();
  format.channels = reader.U16();
  format.rate = reader.U32();
  reader.Skip(6);  // bytes per second, bytes per frame
  format.bits = reader.U16();
  return reader.Ok() ? format : WaveFormat{};
}

/// One page of an Ogg stream; `data` holds its packets.
struct OggPage {
  std::uint64_t granule = 0;
  std::uint32_t stream = 0;
  std::span<const std::uint8_t> data;
};

std::optional<OggPage> ReadPage(ByteReader& reader) {
  if (!TakesText(reader, "OggS")) return std::nullopt;
  reader.Skip(2);  // version, flags
  OggPage page;
  page.granule = reader.U64();
  page.stream = reader.U32();
  reader.Skip(8);  // number of the page, checksum
  const auto segments = reader.Take(reader.U8());
  std::size_t size = 0;
  for (const std::uint8_t segment : segments) size += segment;
  page.data = reader.Take(size);
  if (!reader.Ok()) return std::nullopt;
  return page;
}

/// Samples per second, from the header packet; 0 when it is not Vorbis.
std::uint32_t VorbisRate(std::span<const std::uint8_t> packet) {
  ByteReader reader(packet);
  if (!TakesText(reader, "\x01vorbis")) return 0;
  reader.Skip(5);  // version, channels
  const std::uint32_t rate = reader.U32();
  return reader.Ok() ? rate : 0;
}

}  // namespace

std::optional<double> WaveSeconds(std::span<const std::uint8_t> file) {
  ByteReader reader(file);
  const bool isRiff = TakesText(reader, "RIFF");
  reader.Skip(4);
  if (!isRiff || !TakesText(reader, "WAVE")) return std::nullopt;
  WaveFormat format;
  while (reader.Left() >= 8) {
    const auto name = reader.Take(4);
    const std::size_t size = reader.U32();
    const auto chunk = reader.Take(std::min(size, reader.Left()));
    if (IsText(name, "fmt ")) format = ReadFormat(chunk);
    if (IsText(name, "data")) {
      if (!IsPlayable(format) || chunk.size() < size) return std::nullopt;
      const std::size_t frames = chunk.size() / (std::size_t{format.channels} * format.bits / 8);
      if (frames == 0) return std::nullopt;
      return static_cast<double>(frames) / format.rate;
    }
    if (size % 2 == 1) reader.Skip(1);
  }
  return std::nullopt;
}

std::optional<double> VorbisSeconds(std::span<const std::uint8_t> file) {
  constexpr std::uint64_t kNoGranule = ~std::uint64_t{0};
  ByteReader reader(file);
  const auto first = ReadPage(reader);
  const std::uint32_t rate = first ? VorbisRate(first->data) : 0;
  if (rate == 0) return std::nullopt;
  std::uint64_t samples = 0;
  while (const auto page = ReadPage(reader))
    if (page->stream == first->stream && page->granule != kNoGranule) samples = page->granule;
  if (samples == 0) return std::nullopt;
  return static_cast<double>(samples) / rate;
}

}  // namespace coilrun
