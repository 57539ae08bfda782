#include "game/progress.h"

#include "field.h"

namespace coilrun {
namespace {

TEST(LevelComplete, SinglePlayAsksForAllFiveAtOnce) {
  Field field;
  LevelState& level = field.state.level;
  level.reqYellow = level.reqRed = level.reqBlue = level.reqBlack = 2;
  level.reqScore = 50;
  SnakeRec& player = field.Player();
  player.YellowEaten = player.RedEaten = player.BlueEaten = player.BlackEaten = 2;
  player.Score = 50;
  EXPECT_TRUE(LevelComplete(field.state, 5)) << "whoever asks";
  const auto lacksOne = [&field](auto& count) {
    --count;
    const bool complete = LevelComplete(field.state, 1);
    ++count;
    return !complete;
  };
  EXPECT_TRUE(lacksOne(player.YellowEaten));
  EXPECT_TRUE(lacksOne(player.RedEaten));
  EXPECT_TRUE(lacksOne(player.BlueEaten));
  EXPECT_TRUE(lacksOne(player.BlackEaten));
  EXPECT_TRUE(lacksOne(player.Score));
}

TEST(LevelComplete, MatchesCountFragsOrLength) {
  Field field;
  field.state.mode.GameMode = GameMode::kDeathmatch;
  field.state.mode.MatchLimit = 5;
  field.Snake(3).Frags = 5;
  field.Snake(4).Length = 5;
  for (const bool hunting : {false, true}) {
    field.state.mode.HuntingMode = hunting;
    EXPECT_EQ(LevelComplete(field.state, 3), !hunting) << hunting;
    EXPECT_EQ(LevelComplete(field.state, 4), hunting) << hunting;
  }
}

/// Completes a level after 100 seconds, with 1300 points, and tells what that changed.
std::string Complete(Field& field) {
  field.host.onYield = [&] { EXPECT_FALSE(field.state.shell.Running); };
  field.Put(2, {300, 300}).Length = 7;
  SnakeRec& player = field.Put(1, {300, 300});
  player.Score = 300;
  player.TotalScore = 1000;
  player.Immortal = true;
  player.Lives = 1;
  field.state.level.ElapsedSecs = 100;
  return field.After(NextLevel);
}

TEST(NextLevel, AddsScoreAndTimeBonusAndLoadsTheNext) {
  using Row = std::tuple<double, double, std::vector<std::string>, std::string>;
  const std::string record = " This is a new High Score!";
  const Row rows[] = {{120, 1319, {"260 Time Bonus: 20 pts", "275" + record}, "1320"},
                      {120, 1320, {"260 Time Bonus: 20 pts"}, "1320"},
                      {60, 5000, {"260 Time Bonus: -40 pts"}, "1260"},
                      {0, 1000, {"260" + record}, "1300"}};
  for (const auto& [timeout, lowest, more, total] : rows) {
    Field field;
    for (HiScoreEntry& entry : field.state.HiScore) entry.Score = 9999;
    field.state.HiScore(10).Score = lowest;
    field.state.level.nextLvl = ".\\lvl\\lvl7.dat";
    field.state.level.Timeout = timeout;
    EXPECT_EQ(Complete(field), "1.Immortal=0 1.Score=0 1.TotalScore=" + total +
                                   " 2.Length=1 ElapsedSecs=0 Running=1 lvlTime=1 "
                                   "[level .\\lvl\\lvl7.dat]");
    std::vector<std::string> texts{"215 Next Level!!!", "230 -Press Enter-",
                                   "245 Your Score: " + total};
    texts.insert(texts.end(), more.begin(), more.end());
    field.host.screen.resize(texts.size());
    EXPECT_EQ(field.host.screen, texts);
    EXPECT_EQ(field.state.HiScore(10).Score, lowest) << "nothing is stored yet";
  }
}

const std::string kEnd =
    "1.Immortal=0 1.Lives=3 1.Score=0 1.TotalScore=0 2.Dir=none 2.Length=1 2.NextDir=none "
    "ElapsedSecs=0 InMenu=1 ";

TEST(NextLevel, TheLastLevelEntersTheTableAndOpensTheMenus) {
  for (const std::string next : {".\\lvl\\END", ".\\lvl\\", ""}) {
    Field field;
    for (HiScoreEntry& entry : field.state.HiScore) entry = {"Old", 2000};
    field.state.HiScore(4).Score = 1200;
    field.state.level.nextLvl = next;
    // The menus take no keys while these are set.
    field.state.shell.LevelIntroPending = field.state.shell.ShowLevelScreen = true;
    EXPECT_EQ(Complete(field),
              kEnd +
                  "LevelIntroPending=0 NoGameRunning=1 Running=1 ScorePage=1 ShowLevelScreen=0 "
                  "lvlTime=1 [save] [menus]");
    EXPECT_EQ(field.state.HiScore(4).Name, "Ann");
    EXPECT_EQ(field.state.HiScore(4).Score, 1300);
  }
}

TEST(NextLevel, ACheatedGameEntersNothing) {
  Field field;
  field.state.mode.Cheated = true;
  EXPECT_EQ(Complete(field), kEnd + "NoGameRunning=1 Running=1 lvlTime=1 [menus]");
  EXPECT_EQ(field.host.screen.at(3), "200 " + std::string(20, '*'));
}

TEST(CheckTimeLimit, RespawnsWithoutADeath) {
  using Row = std::tuple<double, int, bool, int, std::string, std::vector<WaitOverlay>>;
  const std::string start = "1.At=100,100 1.Dir=none ";
  const std::string respawn =
      start + "1.Lives=2 1.NextDir=none ElapsedSecs=0 WaitingForStart=1 lvlTime=1";
  const std::string over = start +
                           "1.Lives=3 1.NextDir=none ElapsedSecs=0 InMenu=1 "
                           "NoGameRunning=1 WaitingForStart=1 lvlTime=1";
  using enum WaitOverlay;
  const Row rows[] = {{60, 59, false, 3, "", {}},
                      {60, 60, false, 3, respawn, {kTimeLimit}},
                      {60, 60, false, 0, over, {kTimeLimit, kGameOver}},
                      {60, 90, true, 3, "", {}},
                      {0, 90, false, 3, "", {}}};
  for (const auto& [timeout, elapsed, timePass, lives, told, overlays] : rows) {
    Field field;
    field.Put(1, {300, 300}).Lives = lives;
    field.state.level.Timeout = timeout;
    field.state.level.ElapsedSecs = elapsed;
    field.state.mode.TimePass = timePass;
    EXPECT_EQ(field.After(CheckTimeLimit), told) << elapsed << " of " << timeout;
    EXPECT_EQ(field.host.overlays, overlays);
  }
}

TEST(CheckTimeLimit, AMatchGoesOn) {
  Field field;
  field.Put(1, {300, 300});
  field.state.mode.GameMode = GameMode::kDeathmatch;
  field.state.level.Timeout = field.state.level.ElapsedSecs = 60;
  EXPECT_EQ(field.After(CheckTimeLimit),
            "1.At=100,100 1.Dir=none 1.NextDir=none ElapsedSecs=0 WaitingForStart=1 lvlTime=1");
}

TEST(StartNewGame, ClearsCheatsAndLoadsTheFirstLevel) {
  Field field;
  ModeState& mode = field.state.mode;
  mode.GodMode = mode.NoClip = mode.Cheated = mode.TimePass = true;
  EXPECT_EQ(field.After(StartNewGame), "Running=1 [level .\\lvl\\lvl1.dat]");
  EXPECT_FALSE(mode.GodMode || mode.NoClip || mode.Cheated);
  EXPECT_TRUE(mode.TimePass);
}

}  // namespace
}  // namespace coilrun
