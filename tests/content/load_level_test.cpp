#include "content/load_level.h"

#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>

#include "support/content_stage.h"

namespace coilrun {
namespace {

using ::testing::StartsWith;

constexpr const char* kPath = ".\\lvl\\lvl1.dat";

std::string Repeated(int times, const std::string& text) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

class LoadLevelTest : public testing::Test {
 protected:
  LoadLevelTest() { state.shell.LevelIntroPending = true; }

  void Load(const std::string& text) {
    stage.files.Put(kPath, text);
    LoadLevel(stage.context, kPath);
  }
  /// The level's own words and numbers, and the player, as text.
  std::string Properties() const {
    const LevelState& level = state.level;
    const SnakeRec& player = state.Snakes(1);
    std::ostringstream text;
    text << level.lvlName << ", then " << level.nextLvl << "; music " << level.MusicFile << "; "
         << level.Timeout << " s; needs " << level.reqYellow << " yellow, " << level.reqRed
         << " red, " << level.reqScore << " points; blue " << level.blueRate << "; speed to "
         << state.settings.MaxSpeed << ", rising " << state.settings.IncSpeed << "; open "
         << level.hasOpenWalls << ", red " << level.UsesRed << ", power " << level.UsesPower
         << "; starts " << level.MapSnakeCount << "; player at " << player.X << ',' << player.Y
         << " from " << player.StartX << ',' << player.StartY << ", total " << player.TotalScore
         << ", lives " << player.Lives << ", score " << player.Score << ", TNT " << player.TNT
         << ", length " << player.Length << ", immortal " << player.Immortal;
    return text.str();
  }
  bool Failed() const {
    return state.shell.NoGameRunning && state.shell.InMenu && state.shell.Running &&
           !state.shell.LevelIntroPending && !state.shell.ShowLevelScreen &&
           state.menus.StatusText == std::string("Level ") + kPath + " does not exist";
  }
  bool Loaded() const {
    return !state.shell.NoGameRunning && state.shell.ShowLevelScreen &&
           state.shell.WaitingForStart && state.shell.Running;
  }

  ContentStage stage;
  State& state = stage.state;
};

TEST_F(LoadLevelTest, PutsMapAndKeysIntoTheState) {
  Load(
      "| S * a .\r\nlvlName= Yard\r\nnextLvl= lvl2.dat\r\nTimeout= 90\r\nnumYellow=2\r\n"
      "numPower=1\r\nhasOpenWalls=True\r\nreqYellow=5\r\nreqScore=70\r\nblueRate=7.5\r\n"
      "BkgPic= b.bmp\r\nMusicFile=  m.ogg\r\nincrease=1\r\nmaxSpd=12.5\r\ngSpeed=80");
  EXPECT_TRUE(Loaded());
  EXPECT_EQ(Properties(),
            "Yard, then .\\lvl\\lvl2.dat; music .\\music\\m.ogg; 90 s; needs 5 yellow, 0 red, 70 "
            "points; blue 7.5; speed to 12.5, rising 1; open 1, red 0, power 1; starts 1; player "
            "at 0,0 from 30,10, total 0, lives 0, score 0, TNT 0, length 1, immortal 0");
  EXPECT_EQ(state.numWalls, 1);
  EXPECT_EQ(state.Walls(1).At(), (Point{20, 20}));
  EXPECT_EQ(state.numSpawnPoints, 1);
  EXPECT_EQ(state.numUserItems, 1);
  EXPECT_EQ(state.UserItems(1).Name, "A");
  EXPECT_FALSE(state.UserItems(1).Present);
  EXPECT_EQ(state.Snakes(1).BaseInterval, 80);
  EXPECT_EQ(state.Snakes(1).Interval, 100);
  EXPECT_TRUE(state.Items(ItemKind::kYellow)(2).Present);
  EXPECT_TRUE(state.Items(ItemKind::kPower)(1).Present);
  EXPECT_EQ(stage.host.backgrounds, std::vector<std::string>{"\\gfx\\b.bmp"});
  EXPECT_EQ(stage.host.preparations, 1);
}

TEST_F(LoadLevelTest, ComputerSnakesStayEnabledAndAskForNothing) {
  state.Snakes(2).NextDir = Dir::kLeft;
  Load("S 1 .\nAIS=1\n");
  EXPECT_EQ(state.mode.NumSnakes, 2);
  Load("S 1 .\n");
  EXPECT_TRUE(state.mode.AiEnabled);
  EXPECT_EQ(state.mode.NumSnakes, 1);
  EXPECT_EQ(state.Snakes(2).NextDir, Dir::kNone);
}

TEST_F(LoadLevelTest, KeepsAndResetsWhatTheLevelBeforeLeft) {
  Load("| S * .\nnextLvl= lvl9.dat\nlvlName= One\nreqRed=4\nnumPower=2\nhasOpenWalls=True\n");
  SnakeRec& player = state.Snakes(1);
  player.TotalScore = 500;
  player.Lives = 2;
  player.Score = 90;
  player.TNT = 3;
  player.Length = 40;
  player.Immortal = true;
  state.level.ElapsedSecs = 70;
  state.shell.lvlTime = true;
  state.Items(ItemKind::kRed)(5).Present = true;

  Load("S .\n");

  EXPECT_TRUE(Loaded());
  EXPECT_EQ(Properties(),
            "One, then .\\lvl\\lvl9.dat; music ; 0 s; needs 0 yellow, 0 red, 0 points; blue 40; "
            "speed to 30, rising 0; open 0, red 0, power 0; starts 1; player at 30,10 from 10,10, "
            "total 500, lives 2, score 0, TNT 0, length 1, immortal 1")
      << "the head waits on the start of the level before";
  EXPECT_FALSE(state.Walls(1).Present || state.SpawnPoints(1).Present);
  EXPECT_FALSE(state.Items(ItemKind::kPower)(1).Present);
  EXPECT_TRUE(state.Items(ItemKind::kRed)(5).Present);
  EXPECT_EQ(state.level.ElapsedSecs, 0);
  EXPECT_FALSE(state.shell.lvlTime);
}

TEST_F(LoadLevelTest, EndsEveryFaultInTheMenus) {
  const std::pair<std::string, std::string> faults[] = {
      {"lvlName= Hall\r\nnumRed=40000", "hall:2:8: \"numRed=\" cannot"},
      {"Timeout=", "hall:1:9: "},
      {"increase=maybe", "hall:1:10: "},
      {"set:", "hall:1:5: "},
      {"AIS=32767", "hall:1:5: "},
      {"numYellow=301", "hall: more than 300 items"},
      {"numPower=301", "hall: more than 300 items"},
      {Repeated(22, Repeated(31, "| ") + ".\n"), "hall:22:61: more of these"},
      {Repeated(22, Repeated(31, "a ") + ".\n"), "hall:22:61: more of these"},
      {Repeated(22, Repeated(14, "* ") + ".\n"), "hall:22:13: more of these"},
      {Repeated(33, "Requires=a.zip\n"), "hall:33:10: "},
      {std::string("| .\n\0\xFF\nnumTNT=99999", 20), "hall:3:8: "}};
  for (const auto& [text, told] : faults) {
    state.shell = {};
    state.shell.LevelIntroPending = true;
    Load(text);
    EXPECT_TRUE(Failed()) << text.substr(0, 40);
    const auto fault = LoadLevel(stage.context, kPath);
    ASSERT_TRUE(fault) << text.substr(0, 40);
    EXPECT_THAT(FaultText("hall", *fault), StartsWith(told));
    EXPECT_GE(state.mode.NumSnakes, 1);
    EXPECT_LE(state.mode.NumSnakes, kMaxSnakes);
  }
  stage.files.Delete(kPath);
  state.shell.DebugMode = true;
  LoadLevel(stage.context, kPath);
  EXPECT_TRUE(Failed());
  EXPECT_EQ(state.feed.Console(5), state.menus.StatusText + "\r\n");
}

TEST_F(LoadLevelTest, TakesTablesThatAreJustFull) {
  Load(Repeated(21, Repeated(32, "| ") + ".\n") + Repeated(9, "| ") + ".\n" +
       Repeated(32, "Requires=a.zip\n") + "numYellow=1");
  EXPECT_TRUE(Loaded());
  EXPECT_EQ(state.numWalls, kMaxWalls);
}

TEST_F(LoadLevelTest, LeavesItemsAbsentOnAFullField) {
  Load(Repeated(22, Repeated(30, "| ") + ".\n") + "numYellow=2\nnumRed=1\n");
  EXPECT_TRUE(Loaded());
  EXPECT_FALSE(state.Items(ItemKind::kRed)(1).Present);
  EXPECT_EQ(state.Items(ItemKind::kRed)(1).At(), kParked);
}

TEST_F(LoadLevelTest, CountsSnakesByKeySwitchAndMap) {
  // In the middle, the "/AIS=" of the command line; -1 for none.
  using Row = std::tuple<std::string, int, int>;
  const Row rows[] = {{"S 1 2 3 4 5 .\nAIS=3\n", -1, 4},
                      {"S 1 .\nAIS=3\n", -1, 2},
                      {"1 2 S .\nAIS=3\n", -1, 1},
                      {"S 1 2 3 4 5 .\n", 3, 4},
                      {"S 1 .\n", 3, 2},
                      {"S 1 2 3 4 5 .\n", 1000000, 6},
                      {"S 1 2 .\nAIS=0\n", -1, 1},
                      {"S 1 2 .\nAIS=-7\n", -1, 1},
                      {"S 1 2 .\nAIS=1.5\n", -1, 2}};
  for (const auto& [text, switchCount, snakes] : rows) {
    state.mode = {};
    state.mode.AiSwitchGiven = state.mode.AiEnabled = switchCount >= 0;
    state.mode.AiCount = switchCount;
    state.timers.iWait(1).Enabled = false;
    Load(text);
    EXPECT_TRUE(Loaded()) << text << switchCount;
    EXPECT_EQ(state.mode.NumSnakes, snakes) << text << switchCount;
    EXPECT_EQ(state.timers.iWait(1).Enabled, snakes > 1) << text;
  }
}

TEST_F(LoadLevelTest, KeepsThePlayerOnAMapWithoutStarts) {
  Load("numYellow=1\nAIS=3\n");
  EXPECT_TRUE(Loaded());
  EXPECT_EQ(state.mode.NumSnakes, 1);
  EXPECT_EQ(state.Snakes(1).StartX, 310);
  EXPECT_EQ(state.Snakes(1).StartY, 230);
}

TEST_F(LoadLevelTest, SetsTheMatchLimitOnlyWhenItHasNone) {
  using Row = std::tuple<int, bool, int>;
  const Row rows[] = {{1, false, 120}, {0, true, 30}, {30, false, 30}};
  for (const auto& [before, hunting, after] : rows) {
    state.mode.MatchLimit = before;
    state.mode.HuntingMode = hunting;
    Load("S .");
    EXPECT_EQ(state.mode.MatchLimit, after) << before << hunting;
  }
}

TEST_F(LoadLevelTest, UnpacksRequiredArchivesByTheirEnding) {
  stage.archive.archives[".\\extra.snr"] = {{"x.bmp", "1"}};
  stage.archive.archives[".\\other.SNR"] = {{"y.bmp", "1"}};
  Load("Requires= extra.snr\nRequires=other.SNR\nRequires=gone.snr\n");
  EXPECT_TRUE(Loaded());
  EXPECT_TRUE(stage.files.Exists(".\\gfx\\x.bmp"));
  EXPECT_FALSE(stage.files.Exists(".\\gfx\\y.bmp"));
  EXPECT_EQ(state.level.RequiredArchives(3), "gone.snr");
  EXPECT_EQ(state.feed.introCaption, "Unextracting: gone.snr");
}

TEST_F(LoadLevelTest, GivesUserItemsTheirPictures) {
  stage.files.Put(".\\gfx\\crate.bmp", "BM");
  stage.files.Put(".\\gfx\\fan\\1.bmp", "BM");
  stage.host.pictures = {"crate.bmp"};
  for (int frame = 1; frame <= 45; ++frame) {
    stage.host.pictures.insert("fan\\" + std::to_string(frame) + ".bmp");
  }
  Load("c c f d .\nlet:c wall\nset:c crate.bmp\nset:f fan\nlet:d ani_wall_no_tnt\nset:d fan\n");
  ASSERT_TRUE(Loaded());
  EXPECT_TRUE(state.level.UserItemsUsed);
  EXPECT_EQ(state.UserItems(2).Name, "crate.bmp");
  EXPECT_EQ(state.UserItems(2).Type.Text(), "wall");
  EXPECT_TRUE(state.UserItems(2).Present);
  EXPECT_EQ(state.UserItems(3).Type.Text(), "");
  EXPECT_EQ(stage.host.preloaded.size(), 46U) << "one picture, then 45 frames, each once";
  EXPECT_EQ(stage.host.percents.back(), 100);
}

TEST_F(LoadLevelTest, FailsOnATypedUserItemWithoutItsPicture) {
  stage.files.Put(".\\gfx\\crate.bmp", "BM");
  stage.host.pictures = {"crate.bmp"};
  Load("c d .\nlet:c wall\nset:c crate.bmp\nlet:d wall\nset:d missing.bmp\n");
  EXPECT_TRUE(Failed());
  Load("c d .\nlet:d wall\nset:d missing.bmp\n");
  EXPECT_TRUE(Loaded()) << "without any picture nothing is preloaded";
}

}  // namespace
}  // namespace coilrun
