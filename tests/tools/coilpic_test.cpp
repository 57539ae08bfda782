#include <string_view>

#include <gmock/gmock.h>

#include "tool_run.h"

namespace coilrun {
namespace {

using ::testing::HasSubstr;
using namespace std::string_literals;

const std::string kPic = COILRUN_BUILD_DIR "/tools/coilpic";

/// A PNG file of 3 x 2 pixels: red, green, blue; white, black, (1, 2, 3).
constexpr std::string_view kPng =
    "89504e470d0a1a0a0000000d49484452000000030000000208020000001216f14d0000001f494441547801011400"
    "ebff00ff000000ff000000ff00ffffff00000001020344d90601af719e750000000049454e44ae426082";

std::string FromHex(std::string_view digits) {
  std::string bytes;
  for (std::size_t at = 0; at < digits.size(); at += 2)
    bytes.push_back(static_cast<char>(std::stoi(std::string(digits.substr(at, 2)), nullptr, 16)));
  return bytes;
}

TEST(Coilpic, TurnsPicturesUpsideDownIntoBmp) {
  const Workshop shop;
  shop.Put("in/Menu/Six.PNG", FromHex(kPng));
  shop.Put("in/model.ini", "NAME=x");
  const auto outcome = shop.Run(kPic + " in out");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(shop.Contents("out/model.ini"), "NAME=x");
  const std::string header =
      "BM\x4E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\3\0\0\0\2\0\0\0\1\0\x18\0\0\0\0\0\x18\0\0\0"s +
      std::string(16, '\0');
  EXPECT_EQ(shop.Contents("out/Menu/Six.bmp"),
            header + "\xFF\xFF\xFF\0\0\0\3\2\1\0\0\0"s + "\0\0\xFF\0\xFF\0\xFF\0\0\0\0\0"s);
}

TEST(Coilpic, NamesABadPicture) {
  const Workshop shop;
  shop.Put("in/bad.png", FromHex(kPng).substr(0, 60));
  const auto outcome = shop.Run(kPic + " in out");
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.errors, HasSubstr("in/bad.png: "));
  EXPECT_EQ(shop.Run(kPic + " missing out").code, 1);
  EXPECT_EQ(shop.Run(kPic + " in").code, 2);
}

}  // namespace
}  // namespace coilrun
