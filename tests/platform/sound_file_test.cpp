#include "platform/sound_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/sound_bytes.h"

namespace coilrun {
namespace {

using testing::DoubleEq;
using testing::Optional;

constexpr std::size_t kFormatAt = 20;
constexpr std::size_t kDataSizeAt = 40;
constexpr std::size_t kDataAt = 44;

TEST(SoundFile, WavesAreMeasuredAndBrokenOnesRefused) {
  const Bytes good = WaveOf(11'025);
  EXPECT_THAT(WaveSeconds(good), Optional(DoubleEq(0.5)));

  Bytes withOddChunk = good;
  const Bytes chunk = ByteLine().Text("LIST").Number(3, 4).Number(0, 4).bytes;
  withOddChunk.insert(withOddChunk.begin() + 36, chunk.begin(), chunk.end());
  EXPECT_THAT(WaveSeconds(withOddChunk), Optional(DoubleEq(0.5)));

  for (std::size_t length = 0; length < kDataAt + 1; ++length)
    EXPECT_FALSE(WaveSeconds(std::span(good).first(length))) << length;
  EXPECT_FALSE(WaveSeconds(std::span(good).first(good.size() - 1)));
  for (const std::size_t at : {std::size_t{0}, std::size_t{8}, kFormatAt, kFormatAt + 2,
                               kFormatAt + 7, kFormatAt + 14, kDataSizeAt + 3}) {
    Bytes broken = good;
    broken[at] ^= 0x55U;
    EXPECT_FALSE(WaveSeconds(broken)) << "byte " << at;
  }
  EXPECT_FALSE(WaveSeconds(WaveOf(0)));
}

void AddPage(ByteLine& file, std::uint64_t granule, std::uint32_t stream, const Bytes& data) {
  file.Text("OggS").Number(0, 2).Number(granule, 8).Number(stream, 4).Number(0, 8);
  file.Number(1, 1).Number(data.size(), 1);
  file.bytes.insert(file.bytes.end(), data.begin(), data.end());
}

TEST(SoundFile, VorbisFilesEndAtTheLastPageOfTheirStream) {
  const Bytes header =
      ByteLine().Text("\x01vorbis").Number(0, 4).Number(2, 1).Number(44'100, 4).bytes;
  ByteLine file;
  AddPage(file, 0, 7, header);
  const std::size_t firstPage = file.bytes.size();
  AddPage(file, 44'100, 7, Bytes(200));
  AddPage(file, 66'150, 7, Bytes(200));
  AddPage(file, ~std::uint64_t{0}, 7, Bytes(200));  // a page in which no packet ends
  AddPage(file, 999'999, 8, Bytes(200));            // another stream
  EXPECT_THAT(VorbisSeconds(file.bytes), Optional(DoubleEq(1.5)));

  EXPECT_FALSE(VorbisSeconds({}));
  EXPECT_FALSE(VorbisSeconds(std::span(file.bytes).first(firstPage)));
  Bytes noVorbis = file.bytes;
  noVorbis[30] = 'V';
  EXPECT_FALSE(VorbisSeconds(noVorbis));
  Bytes noRate = file.bytes;
  for (std::size_t at = 40; at < 44; ++at) noRate[at] = 0;
  EXPECT_FALSE(VorbisSeconds(noRate));
}

}  // namespace
}  // namespace coilrun
