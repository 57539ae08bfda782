#include "platform/sound_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/rar/byte_writer.h"
#include "platform/support.h"

namespace coilrun {
namespace {

using testing::DoubleEq;
using testing::Optional;

TEST(SoundFile, WavesAreMeasuredAndBrokenOnesRefused) {
  const Bytes good = WaveOf(11'025);
  EXPECT_THAT(WaveSeconds(good), Optional(DoubleEq(0.5)));

  constexpr std::size_t kFormatAt = 20;
  constexpr std::size_t kDataSizeAt = 40;
  constexpr std::size_t kDataAt = 44;
  Bytes withOddChunk = good;
  constexpr std::string_view kChunk("LIST\3\0\0\0odd", 12);
  withOddChunk.insert(withOddChunk.begin() + 36, kChunk.begin(), kChunk.end());
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

void AddPage(ByteWriter& file, std::uint32_t granule, std::uint32_t stream, const Bytes& data) {
  const std::uint32_t sign = granule == ~0U ? ~0U : 0;
  file.Add(ToBytes(std::string("OggS\0\0", 6)));
  for (const std::uint32_t number : {granule, sign, stream, 0U, 0U}) file.U32(number);
  file.U8(1);
  file.U8(data.size());
  file.Add(data);
}

TEST(SoundFile, VorbisFilesEndAtTheLastPageOfTheirStream) {
  ByteWriter file;
  AddPage(file, 0, 7, ToBytes(std::string("\x01vorbis\0\0\0\0\2\x44\xAC\0\0", 16)));
  const std::size_t firstPage = file.Written().size();
  AddPage(file, 44'100, 7, Bytes(200));
  AddPage(file, 66'150, 7, Bytes(200));
  AddPage(file, ~0U, 7, Bytes(200));      // a page in which no packet ends
  AddPage(file, 999'999, 8, Bytes(200));  // another stream
  const Bytes good = file.Written();
  EXPECT_THAT(VorbisSeconds(good), Optional(DoubleEq(1.5)));

  EXPECT_FALSE(VorbisSeconds({}));
  EXPECT_FALSE(VorbisSeconds(std::span(good).first(firstPage)));
  Bytes noVorbis = good;
  noVorbis[30] = 'V';
  EXPECT_FALSE(VorbisSeconds(noVorbis));
  Bytes noRate = good;
  for (std::size_t at = 40; at < 44; ++at) noRate[at] = 0;
  EXPECT_FALSE(VorbisSeconds(noRate));
}

}  // namespace
}  // namespace coilrun
