#include <algorithm>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <png.h>

#include "png_file.h"
#include "tool_run.h"

namespace coilrun {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::string kLevel = COILRUN_BUILD_DIR "/tools/coillevel";
const std::string kShipped = COILRUN_BUILD_DIR "/game/lvl/lvl9.dat";

/// 22 empty rows with these lines below.
std::string LevelWith(const std::string& keys) {
  std::string text;
  for (int row = 0; row < 22; ++row) text += "_ _ _ ;\r\n";
  return text + keys;
}

/// The pixels of a 640 x 480 picture as RGB; empty when the file is not such a picture.
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
  shop.Put("below.dat", LevelWith("lvlName= B\r\na wall is missing here\r\n_ | | ;\r\n"));
  shop.Put("blank.dat", LevelWith("numYellow= 3 \r\nreqRed=1 2\r\nlvlName= B\r\n"));
  shop.Put("match.dat", LevelWith("lvlName= M\r\nMatchLimit=4\r\n"));
  shop.Put("bad.dat", LevelWith("lvlName= Bad\r\nnumRed=301\r\n"));
  shop.Put("worse.dat", LevelWith("numRed=3\r\nnumRed=301\r\nlvlName= W\r\n"));
  shop.Put("mended.dat", LevelWith("numRed=301\r\nnumRed=3\r\nlvlName= M\r\n"));
  const std::tuple<std::string, int, std::string> cases[] = {
      {"good.dat", 0, ""},
      {"odd.dat", 0,
       "odd.dat:23: ignored: a line must begin with exactly \"lvlName=\"\n"
       "odd.dat:23: the level has no title\n"},
      {"below.dat", 0, "below.dat:25: ignored: the map has 22 rows"},
      {"blank.dat", 0, "blank.dat:24: \"1 2\" is read as 12"},
      {"match.dat", 0, "match.dat:24: ignored: a match's limit"},
      {"bad.dat", 1, "bad.dat:24: more than 300"},
      {"worse.dat", 1,
       "worse.dat:24: \"numRed=\" again: line 23 has no effect\nworse.dat:24: more"},
      {"mended.dat", 0, "mended.dat:24: \"numRed=\" again: line 23 has no effect\n"},
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

/// A map of 22 rows with these codes at their columns and rows, and these lines below.
std::string Map(const std::vector<std::tuple<int, int, char>>& codes, const std::string& keys) {
  std::string text;
  for (int row = 1; row <= 22; ++row) {
    std::string line;
    for (int column = 1; column <= 30; ++column) line += "_ ";
    for (const auto& [c, r, code] : codes) {
      if (r == row) line.at(static_cast<std::size_t>(c - 1) * 2) = code;
    }
    text += line + ";\r\n";
  }
  return text + keys;
}

/// A ring of codes around a square of `size` cells that begins at this column and row.
void Ring(std::vector<std::tuple<int, int, char>>& codes, int column, int row, int size,
          char code) {
  for (int i = -1; i <= size; ++i) {
    for (const int edge : {-1, size}) {
      codes.emplace_back(column + i, row + edge, code);
      codes.emplace_back(column + edge, row + i, code);
    }
  }
}

TEST(Coillevel, CheckNamesWhatAwaitsTheSnakes) {
  using Codes = std::vector<std::tuple<int, int, char>>;
  Codes boxed = {{15, 12, 'S'}};
  Ring(boxed, 13, 10, 4, '+');
  Codes room = {{15, 12, 'S'}, {6, 11, '*'}, {20, 18, '*'}};
  Ring(room, 5, 10, 3, 'w');
  Codes hollow = {{15, 18, 'S'}};
  Ring(hollow, 6, 6, 1, '+');
  Codes shut = {{15, 12, 'S'}, {6, 11, '*'}};
  Ring(shut, 12, 8, 8, '+');
  const std::string soft = "let:w wall\r\nset:w crate.bmp\r\n";
  const std::string hard = "let:w wall_no_tnt\r\nset:w crate.bmp\r\n";
  const std::string lost = "x.dat:10: no snake can take what is put into column 5: ";
  const std::string point =
      "x.dat:11: no snake can take bananas from the spawn point in column 6\n";
  const std::tuple<Codes, std::string, std::string> cases[] = {
      // Starts
      {{{15, 12, 'S'}, {15, 12, '+'}},
       "numYellow=1\n",
       "x.dat:1: the player's start lies in a wall"},
      {{{15, 12, 'S'}, {14, 11, '+'}}, "", "x.dat:12: the start \"S\" lies in a wall"},
      {{{15, 12, 'S'}, {16, 4, '+'}, {13, 12, '+'}},
       "",
       "x.dat:12: the start \"S\" has no free cell left\n"},
      {{{15, 12, 'S'}, {12, 12, '+'}}, "", ""},
      {{{2, 21, 'S'}}, "", ""},
      {{{15, 12, 'S'}, {8, 15, '1'}, {8, 10, '+'}},
       "",
       "x.dat:15: the start \"1\" has only 3 free cells above: computer snakes start upwards\n"},
      {{{15, 12, 'S'}, {15, 15, '+'}, {18, 12, '+'}, {12, 12, '+'}},
       "",
       "x.dat:12: the start \"S\" has only one way out: above 3, below 2, left 1, right 2\n"},
      {boxed, "", "x.dat:12: the start \"S\" has fewer than 3 free cells in every direction"},
      {{{15, 12, 'S'}},
       "SnakeStrtX= 630\n",
       "x.dat:24: the player's start lies outside the field\n"},
      {{{15, 12, 'S'}, {5, 5, '1'}, {5, 9, '1'}},
       "",
       "x.dat:9: the start \"1\" again: the one in line 5"},
      {{{15, 12, 'S'}, {5, 5, '1'}},
       "",
       "x.dat:5: the start \"1\" is not the start that is read last: only 1 "},
      {{{5, 5, 'S'}, {5, 9, '2'}},
       "",
       "x.dat:9: snake 2 has no start, though there is the start \"2\"\n"},
      {{{5, 5, 'S'}, {5, 9, '1'}}, "AIS=2\n", "x.dat:24: the map has starts for 2 snakes only\n"},
      // Texts over the field
      {{{15, 12, 'S'}, {8, 1, '+'}}, "", "x.dat:1: a wall stands behind the status line\n"},
      {{{15, 12, 'S'}, {8, 3, '*'}}, "", "x.dat:3: a spawn point stands behind the messages\n"},
      {{{15, 12, 'S'}, {8, 4, 'w'}}, soft, "x.dat:4: a user item stands behind the messages\n"},
      {{{15, 12, 'S'}, {8, 22, '1'}}, "", "x.dat:22: a start stands behind the panel of items\n"},
      {{{15, 12, 'S'}, {30, 22, '+'}, {15, 22, '+'}},
       "",
       "x.dat:22: a wall stands behind the frags\n"},
      // Reach
      {room, soft + "numYellow=2\nnumTNT=1\n", ""},
      {room, hard + "numYellow=2\nnumTNT=1\nnumPower=1\n", ""},
      {room, hard + "numYellow=2\nnumTNT=1\n", lost},
      {room, hard + "numYellow=2\nHideCollected=True\n", point},
      {room, soft + "numYellow=2\nHideCollected=True\nAIS=1\n", point},
      {hollow, "numYellow=2\n", "x.dat:6: no snake can take what is put into column 6: 1 of "},
      {hollow, "numYellow=0\n", ""},
      {shut, "hasOpenWalls=True\nnumYellow=1\nHideCollected=True\n", point},
      // Requirements
      {{}, "reqRed=2\n", "x.dat:24: the level has no chilies\n"},
      {shut, "numBlue=1\nHideCollected=True\nreqBlue=1\n",
       "x.dat:11: no snake can take crystals from the spawn point in column 6\nx.dat:26: the "
       "player "
       "can reach no crystals\n"},
      {{},
       "numBlack=1\nHideCollected=True\nreqBlack=2\n",
       "x.dat:26: more black bananas than there are (1): "},
      {{}, "numBlack=1\nreqScore=20\n", "x.dat:25: nothing that gives points can be reached\n"},
      {{}, "numBlue=1\nblueRate=1\n", "x.dat:25: at a rate of 1 or less no crystal ever"},
      // Walls beside "+"
      {{{5, 9, '+'}, {6, 9, '-'}, {5, 10, '|'}, {4, 9, '<'}, {5, 8, '^'}}, "", ""},
      {{{5, 5, '+'}, {4, 5, '>'}},
       "",
       "x.dat:5: the wall \">\" in column 4 leaves a gap to the \"+\" beside it\n"},
      {{{5, 5, '+'}, {5, 6, '-'}}, "", "x.dat:6: the wall \"-\" in column 5 leaves a gap"},
  };
  const Workshop shop;
  for (const auto& [codes, keys, output] : cases) {
    shop.Put("x.dat", Map(codes, "lvlName= X\n" + keys));
    const auto outcome = shop.Run(kLevel + " check x.dat");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_THAT(outcome.output, StartsWith(output)) << keys;
    EXPECT_EQ(outcome.output.empty(), output.empty()) << keys << outcome.output;
  }
}

TEST(Coillevel, CheckKnowsWhatIsNoLevel) {
  const Workshop shop;
  const std::pair<std::string, std::string> cases[] = {
      {"", "x.dat:1: the file is empty\n"},
      {"Dear diary, nothing to say\n", "x.dat:1: nothing here makes a level\n"},
      {"BM\n" + std::string(5000, '\1') + "\nset:\n",
       "x.dat:2: these bytes are not text, so this is not a level\n"},
  };
  for (const auto& [text, output] : cases) {
    shop.Put("x.dat", text);
    EXPECT_EQ(shop.Run(kLevel + " check x.dat").output, output);
  }
  EXPECT_EQ(shop.Run(kLevel + " check x.dat").code, 1) << "the last line is refused";
}

TEST(Coillevel, DumpTellsWhatTheLoaderMade) {
  const Workshop shop;
  const auto outcome = shop.Run(kLevel + " dump " + kShipped);
  ASSERT_EQ(outcome.code, 0) << outcome.errors;
  const auto level = nlohmann::json::parse(outcome.output);
  EXPECT_EQ(level.at("nextLvl"), ".\\lvl\\lvl10.dat");
  EXPECT_EQ(level.at("UserItemsUsed"), true);
  EXPECT_EQ(level.at("Yellow").size(), level.at("numYellow"));
  for (const char* const key : {"Walls", "SpawnPoints", "UserItems"}) {
    EXPECT_EQ(level.at(key).size(), level.at(std::string{"num"} + key)) << key;
    EXPECT_FALSE(level.at(key).empty()) << key;
  }
}

TEST(Coillevel, CheckNamesWhatTheProgramFolderLacks) {
  const Workshop shop;
  shop.Put("game/gfx/sky.bmp", "");
  shop.Put("game/music/day.ogg", "");
  shop.Put("game/lvl/a.dat",
           LevelWith("lvlName= A\nnextLvl= B.dat\nMusicFile= DAY.ogg\nBkgPic= sky.bmp\n"));
  shop.Put("game/lvl/b.dat",
           LevelWith("lvlName= B\nnextLvl= c.dat\nMusicFile= no.ogg\nBkgPic= no.bmp\n"));
  EXPECT_EQ(shop.Run("cd game/lvl && " + kLevel + " check a.dat b.dat").output,
            "b.dat:24: there is no level \"c.dat\"\nb.dat:25: there is no music \"no.ogg\"\n"
            "b.dat:26: there is no picture \"no.bmp\"\n");
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

/// The player has model 1 after a fresh installation; computer snakes take the lowest that are
/// left.
TEST(Coillevel, DrawsTheStartMarksThatTheGameGivesOut) {
  const Workshop shop;
  const std::string pack = COILRUN_BUILD_DIR "/tools/coilpack create ";
  std::filesystem::create_directories(shop / "game/models");
  const std::string colors[] = {"\xF0\x10\x10", "\x10\xF0\x10", "\x10\x10\xF0"};
  for (int model = 0; model < 3; ++model) {
    const std::string name = "m" + std::to_string(model);
    shop.Put(name + '/' + name + "/start.png", PlainPng(20, 20, colors[model]));
    ASSERT_EQ(shop.Run(pack + "game/models/" + name + ".smp " + name).code, 0);
  }
  shop.Put("game/lvl/own.dat", Map({{5, 5, 'S'}, {10, 10, '1'}}, "AIS=1\r\n"));
  std::filesystem::copy(COILRUN_BUILD_DIR "/game/gfx.snr", shop / "game/gfx.snr");
  ASSERT_EQ(shop.Run(kLevel + " draw game/lvl/own.dat own.png").errors, "");
  const std::string pixels = PixelsOf(shop / "own.png");
  const auto at = [&pixels](int x, int y) {
    return pixels.substr(3U * static_cast<unsigned>(y * 640 + x), 3);
  };
  EXPECT_EQ(at(90, 90), colors[1]);
  EXPECT_EQ(at(209, 209), colors[2]);
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
