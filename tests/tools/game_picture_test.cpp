#include "kit/game_picture.h"

#include <gmock/gmock.h>

#include "png_file.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;
using namespace std::string_literals;

Bytes BytesOf(const std::string& text) {
  return {text.begin(), text.end()};
}

std::vector<Pixel> Shown(const std::string& png, KeyMode key) {
  return DecodeBmp(GameBmp(DecodePng(BytesOf(png)), key)).value_or(Bitmap{}).pixels;
}

TEST(GamePicture, GivesTransparentPixelsTheKeyAndKeepsTheOthersOffIt) {
  const std::string png = PngFile(6, 1,
                                  "\xFF\x80\x01\x00"
                                  "\xFF\x80\x01\x7F"
                                  "\xFF\x80\x01\x80"
                                  "\0\0\0\xFF"
                                  "\x83\x83\x83\xFF"
                                  "\x80\x80\x80\xFF"s);
  EXPECT_THAT(Shown(png, KeyMode::kBlack),
              ElementsAre(0, 0, 0xFF8001, 0x0B0B0B, 0x838383, 0x808080));
  EXPECT_THAT(Shown(png, KeyMode::kGrey131),
              ElementsAre(0x838383, 0x838383, 0xFF8001, 0, 0x848484, 0x808080));
  EXPECT_THAT(Shown(png, KeyMode::kGrey128),
              ElementsAre(0x808080, 0x808080, 0xFF8001, 0, 0x838383, 0x818181));
}

TEST(GamePicture, TakesAPictureWithoutOpacityAsItIs) {
  const std::string png = PngFile(3, 1,
                                  "\0\0\0"
                                  "\x83\x83\x83"
                                  "\x01\x02\x03"s);
  EXPECT_THAT(Shown(png, KeyMode::kBlack), ElementsAre(0, 0x838383, 0x010203));
  EXPECT_FALSE(HasTransparentPixels(DecodePng(BytesOf(png))));
}

TEST(GamePicture, KnowsTheKeyByTheFolder) {
  const std::pair<const char*, KeyMode> cases[] = {
      {"crate.png", KeyMode::kBlack},
      {"flame/1.png", KeyMode::kBlack},
      {"Yellow_animated/1.png", KeyMode::kGrey131},
      {"gfx/RED_ANIMATED/45.bmp", KeyMode::kGrey131},
      {"atomic_animated/7.bmp", KeyMode::kGrey131},
      {"tnt_animated/1.bmp", KeyMode::kGrey128},
      {"tnt_animated/small/1.bmp", KeyMode::kBlack},
  };
  for (const auto& [name, key] : cases) EXPECT_EQ(KeyOf(name), key) << name;
}

}  // namespace
}  // namespace coilrun
