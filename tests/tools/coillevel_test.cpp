#include <algorithm>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <png.h>

#include "tool_run.h"

namespace coilrun {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::string kLevel = COILRUN_BUILD_DIR "/tools/coillevel";
const std::string kShipped = COILRUN_BUILD_DIR "/game/lvl/lvl3.dat";

/// 22 empty rows, and these lines below.
std::string LevelWith(const std::string& keys) {
  std::string text;
  for (int row = 0; row < 22; ++row) text += "_ _ _ ;\r\n";
  return text + keys;
}

/// The pixels of a 640 x 480 picture as RGB; empty when the file is no such picture.
std::string PixelsOf(const std::filesystem::path& file) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&image, file.c_str()) == 0) return "";
  image.format = PNG_FORMAT_RGB;
  std::string pixels(PNG_IMAGE_SIZE(image), '\0');
  if (png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr) == 0) return "";
  return image.width == 640 && image.height == 480 ? pixels : "";
}

TEST(Coillevel, CheckNamesTheLine) {
  const Workshop shop;
  shop.Put("good.dat", LevelWith("lvlName= Good\r\nnextLvl= END\r\nnumYellow=3\r\n"));
  shop.Put("odd.dat", LevelWith("lvlname= Odd\r\n"));
  shop.Put("below.dat", LevelWith("a wall is missing here\r\n_ | | ;\r\n"));
  shop.Put("blank.dat", LevelWith("numYellow= 3 \r\nreqRed=1 2\r\n"));
  shop.Put("bad.dat", LevelWith("lvlName= Bad\r\nnumRed=301\r\n"));
  const std::tuple<std::string, int, std::string> cases[] = {
      {"good.dat", 0, ""},
      {"odd.dat", 0, "odd.dat:23: ignored"},
      {"below.dat", 0, "below.dat:24: ignored: the map has 22 rows"},
      {"blank.dat", 0, "blank.dat:24: \"1 2\" is read as 12"},
      {"bad.dat", 1, "bad.dat:24: more than 300"},
      {"good.dat bad.dat", 1, "bad.dat:24: "},
      {COILRUN_BUILD_DIR "/game/lvl/*.dat", 0, ""},
  };
  for (const auto& [files, code, output] : cases) {
    const auto outcome = shop.Run(kLevel + " check " + files);
    EXPECT_EQ(outcome.code, code) << files;
    EXPECT_THAT(outcome.output, StartsWith(output)) << files;
    EXPECT_EQ(outcome.output.empty(), output.empty()) << files;
  }
}

TEST(Coillevel, DumpTellsWhatTheLoaderMade) {
  const Workshop shop;
  const auto outcome = shop.Run(kLevel + " dump " + kShipped);
  ASSERT_EQ(outcome.code, 0) << outcome.errors;
  const auto level = nlohmann::json::parse(outcome.output);
  EXPECT_EQ(level.at("nextLvl"), ".\\lvl\\lvl4.dat");
  EXPECT_EQ(level.at("UserItemsUsed"), true);
  EXPECT_EQ(level.at("Yellow").size(), level.at("numYellow"));
  for (const char* const key : {"Walls", "SpawnPoints", "UserItems"}) {
    EXPECT_EQ(level.at(key).size(), level.at(std::string{"num"} + key)) << key;
    EXPECT_FALSE(level.at(key).empty()) << key;
  }
}

TEST(Coillevel, DrawsTheFieldAndLeavesTheProgramFolderAlone) {
  const Workshop shop;
  shop.Put("game/lvl/own.dat", LevelWith("numYellow=3\r\n"));
  shop.Put("game/lvl/walled.dat", "+ + + ;\r\n" + LevelWith("numYellow=3\r\n"));
  std::filesystem::copy(COILRUN_BUILD_DIR "/game/gfx.snr", shop / "game/gfx.snr");
  const auto outcome = shop.Run("TMPDIR=. " + kLevel + " draw game/lvl/own.dat own.png && " +
                                kLevel + " draw game/lvl/walled.dat walled.png");
  ASSERT_EQ(outcome.code, 0) << outcome.errors;
  const std::string own = PixelsOf(shop / "own.png");
  ASSERT_FALSE(own.empty());
  EXPECT_GT(std::count_if(own.begin(), own.end(), [](char part) { return part != 0; }), 640 * 480);
  EXPECT_NE(own, PixelsOf(shop / "walled.png"));
  EXPECT_EQ(shop.Run("ls game; ls -d coillevel-*").output, "gfx.snr\nlvl\n");
}

TEST(Coillevel, TellsInOneLineWhyItCannotDraw) {
  const Workshop shop;
  shop.Put("game/lvl/own.dat", LevelWith("numRed=301\r\n"));
  EXPECT_THAT(shop.Run(kLevel + " draw game/lvl/own.dat own.png").errors,
              HasSubstr("there is no gfx.snr in "));
  std::filesystem::copy(COILRUN_BUILD_DIR "/game/gfx.snr", shop / "game/gfx.snr");
  const std::tuple<std::string, int, std::string> faults[] = {
      {"game/lvl/own.dat own.png", 1, "the game would not load it"},
      {"game/lvl/none.dat own.png", 1, "cannot read game/lvl/none.dat"},
      {kShipped + " none/own.png", 1, "cannot write none/own.png"},
      {kShipped, 2, "usage: coillevel "},
  };
  for (const auto& [arguments, code, error] : faults) {
    const auto outcome = shop.Run(kLevel + " draw " + arguments);
    EXPECT_EQ(outcome.code, code) << arguments;
    EXPECT_THAT(outcome.errors, HasSubstr(error));
    EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n') == 1, code == 1);
  }
}

}  // namespace
}  // namespace coilrun
