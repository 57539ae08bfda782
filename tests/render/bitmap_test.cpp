#include "render/bitmap.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>

#include "stage.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;

Bytes Corpus(const std::string& name) {
  std::ifstream file(COILRUN_SOURCE_DIR "/fuzz/corpus/bmp/" + name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

Bitmap Decoded(const std::string& name) {
  return DecodeBmp(Corpus(name)).value_or(Bitmap{});
}

TEST(DecodeBmp, ReadsAllDepthsInBothOrders) {
  EXPECT_THAT(Decoded("bits4").pixels,
              ElementsAre(0x102040U, 0x142850U, 0x183060U, 0x040810U, 0x081020U, 0x0C1830U));
  EXPECT_EQ(Decoded("bits8").pixels, Decoded("bits4").pixels) << "the same picture";
  EXPECT_THAT(Decoded("bits24").pixels, ElementsAre(0x0A0908U, 0x0D0C0BU, 0x020100U, 0x050403U));
  EXPECT_THAT(Decoded("bits32").pixels, ElementsAre(0x020100U, 0x060504U, 0x0A0908U, 0x0E0D0CU));
  EXPECT_THAT(Decoded("masks32").pixels, ElementsAre(0x030201U));
  EXPECT_THAT(Decoded("core24").pixels, ElementsAre(0x020100U, 0x050403U));
  EXPECT_THAT(Decoded("no-padding").pixels, ElementsAre(0x060504U, 0x020100U));
  EXPECT_EQ(Decoded("bits1").pixels.size(), 18U);
  EXPECT_THAT(Decoded("many-colours").pixels, ::testing::IsEmpty());
}

TEST(DecodeBmp, RefusesWhatIsNoPlainBitmap) {
  for (const char* const name : {"short", "huge", "lowest-height", "offset-beyond", "rle", "empty",
                                 "only-magic", "long-header"}) {
    EXPECT_FALSE(DecodeBmp(Corpus(name))) << name;
  }
}

TEST(DecodeBmp, SurvivesItsCorpusCutAnywhere) {
  int decoded = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(COILRUN_SOURCE_DIR "/fuzz/corpus/bmp")) {
    Bytes bytes = Corpus(entry.path().filename());
    for (; !bytes.empty(); bytes.pop_back()) {
      const auto bitmap = DecodeBmp(bytes);
      if (!bitmap) continue;
      ++decoded;
      EXPECT_EQ(bitmap->pixels.size(), static_cast<std::size_t>(bitmap->width * bitmap->height));
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
