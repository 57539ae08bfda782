#include "render/bitmap.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>

#include "ports/bytes.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

constexpr const char* kCorpus = COILRUN_SOURCE_DIR "/fuzz/corpus/bmp/";

Bytes Corpus(const std::string& name) {
  std::ifstream file(kCorpus + name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<Pixel> Decoded(const std::string& name) {
  return DecodeBmp(Corpus(name)).value_or(Bitmap{}).pixels;
}

TEST(DecodeBmp, ReadsAllDepthsInBothOrders) {
  EXPECT_THAT(Decoded("bits1"), SizeIs(18));
  EXPECT_THAT(Decoded("bits4"),
              ElementsAre(0x102040U, 0x142850U, 0x183060U, 0x040810U, 0x081020U, 0x0C1830U));
  EXPECT_EQ(Decoded("bits8"), Decoded("bits4")) << "the same picture";
  EXPECT_THAT(Decoded("bits24"), ElementsAre(0x0A0908U, 0x0D0C0BU, 0x020100U, 0x050403U));
  EXPECT_THAT(Decoded("bits32"), ElementsAre(0x020100U, 0x060504U, 0x0A0908U, 0x0E0D0CU));
  EXPECT_THAT(Decoded("masks32"), ElementsAre(0x030201U));
  EXPECT_THAT(Decoded("core24"), ElementsAre(0x020100U, 0x050403U));
  EXPECT_THAT(Decoded("no-padding"), ElementsAre(0x060504U, 0x020100U));
}

TEST(DecodeBmp, RefusesWhatIsNoPlainBitmap) {
  for (const char* const name : {"short", "huge", "lowest-height", "offset-beyond", "rle", "empty",
                                 "only-magic", "long-header", "many-colours"}) {
    EXPECT_FALSE(DecodeBmp(Corpus(name))) << name;
  }
}

TEST(DecodeBmp, SurvivesItsCorpusCutAnywhere) {
  int decoded = 0;
  for (const auto& entry : std::filesystem::directory_iterator(kCorpus)) {
    Bytes bytes = Corpus(entry.path().filename());
    for (; !bytes.empty(); bytes.pop_back()) {
      const auto bitmap = DecodeBmp(bytes);
      if (!bitmap) continue;
      ++decoded;
      EXPECT_THAT(bitmap->pixels, SizeIs(bitmap->width * bitmap->height)) << entry.path();
    }
  }
  EXPECT_GE(decoded, 7);
}

TEST(Resized, TakesTheNearestPixel) {
  const Bitmap bitmap{2, 2, {1, 2, 3, 4}};
  EXPECT_THAT(Resized(bitmap, 4, 2).pixels, ElementsAre(1, 1, 2, 2, 3, 3, 4, 4));
  EXPECT_THAT(Resized(bitmap, 1, 1).pixels, ElementsAre(1));
}

}  // namespace
}  // namespace coilrun
