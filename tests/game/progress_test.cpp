#include "game/progress.h"

#include "field.h"

namespace coilrun {
namespace {

using testing::ElementsAre;

TEST(LevelComplete, SinglePlayAsksForAllFiveAtOnce) {
  Field field;
  LevelState& level = field.state.level;
  level.reqYellow = level.reqRed = level.reqBlue = level.reqBlack = 2;
  level.reqScore = 50;
  SnakeRec& player = field.Player();
  player.YellowEaten = player.RedEaten = player.BlueEaten = player.BlackEaten = 2;
  player.Score = 50;
  EXPECT_TRUE(LevelComplete(field.state, 5)) << "whoever asks";
  for (Int16* eaten :
       {&player.YellowEaten, &player.RedEaten, &player.BlueEaten, &player.BlackEaten}) {
    --*eaten;
    EXPECT_FALSE(LevelComplete(field.state, 1));
    ++*eaten;
  }
  player.Score = 49;
  EXPECT_FALSE(LevelComplete(field.state, 1));
}

TEST(LevelComplete, MatchesCountFragsOrLength) {
  Field field;
  field.state.mode.GameMode = GameMode::kDeathmatch;
  field.state.mode.MatchLimit = 5;
  field.Snake(3).Frags = 5;
  field.Snake(4).Length = 5;
  EXPECT_TRUE(LevelComplete(field.state, 3));
  EXPECT_FALSE(LevelComplete(field.state, 4));
  field.state.mode.HuntingMode = true;
  EXPECT_FALSE(LevelComplete(field.state, 3));
  EXPECT_TRUE(LevelComplete(field.state, 4));
}

/// Completes a level after 100 seconds, with 1300 points.
void Complete(Field& field) {
  field.host.onYield = [&] { EXPECT_FALSE(field.state.shell.Running); };
  field.Put(2, {300, 300}).Length = 7;
  SnakeRec& player = field.Put(1, {300, 300});
  player.Score = 300;
  player.TotalScore = 1000;
  player.Immortal = true;
  player.Lives = 1;
  field.state.level.ElapsedSecs = 100;
  NextLevel(field.game);
  EXPECT_TRUE(field.state.shell.Running);
  EXPECT_EQ(player.Score, 0);
  EXPECT_FALSE(player.Immortal);
  EXPECT_EQ(field.state.level.ElapsedSecs, 0);
  EXPECT_EQ(field.Snake(2).Length, 1);
}

TEST(NextLevel, AddsScoreAndTimeBonusAndLoadsTheNext) {
  struct Row {
    double timeout, lowest;
    std::vector<std::string> more;
    int total;
  };
  const std::string record = " This is a new High Score!";
  for (const auto& [timeout, lowest, more, total] :
       std::vector<Row>{{120, 1319, {"260 Time Bonus: 20 pts", "275" + record}, 1320},
                        {120, 1320, {"260 Time Bonus: 20 pts"}, 1320},
                        {60, 5000, {"260 Time Bonus: -40 pts"}, 1260},
                        {0, 1000, {"260" + record}, 1300}}) {
    Field field;
    for (HiScoreEntry& entry : field.state.HiScore) entry.Score = 9999;
    field.state.HiScore(10).Score = lowest;
    field.state.level.nextLvl = ".\\lvl\\lvl7.dat";
    field.state.level.Timeout = timeout;
    Complete(field);
    std::vector<std::string> texts{"215 Next Level!!!", "230 -Press Enter-",
                                   "245 Your Score: " + std::to_string(total)};
    texts.insert(texts.end(), more.begin(), more.end());
    field.host.screen.resize(texts.size());
    EXPECT_EQ(field.host.screen, texts);
    EXPECT_EQ(field.Player().TotalScore, total);
    EXPECT_EQ(field.state.HiScore(10).Score, lowest) << "nothing is stored yet";
    EXPECT_THAT(field.host.calls, ElementsAre("level .\\lvl\\lvl7.dat"));
  }
}

TEST(NextLevel, TheLastLevelEntersTheTableAndOpensTheMenus) {
  for (const std::string next : {".\\lvl\\END", ".\\lvl\\", ""}) {
    Field field;
    for (HiScoreEntry& entry : field.state.HiScore) entry = {"Old", 2000};
    field.state.HiScore(4).Score = 1200;
    field.state.level.nextLvl = next;
    field.state.shell.LevelIntroPending = true;
    field.state.shell.ShowLevelScreen = true;
    Complete(field);
    EXPECT_THAT(field.host.calls, ElementsAre("save", "menus"));
    EXPECT_EQ(field.state.HiScore(4).Name, "Ann");
    EXPECT_EQ(field.state.HiScore(4).Score, 1300);
    EXPECT_EQ(field.state.menus.ScorePage, 1);
    EXPECT_EQ(field.Player().TotalScore, 0);
    EXPECT_EQ(field.Player().Lives, 3);
    EXPECT_TRUE(field.state.shell.InMenu && field.state.shell.NoGameRunning);
    EXPECT_FALSE(field.state.shell.LevelIntroPending || field.state.shell.ShowLevelScreen)
        << "they would keep the menus from taking keys";
  }
}

TEST(NextLevel, ACheatedGameEntersNothing) {
  Field field;
  field.state.mode.Cheated = true;
  Complete(field);
  EXPECT_EQ(field.host.screen.at(3), "200 " + std::string(20, '*'));
  EXPECT_THAT(field.host.calls, ElementsAre("menus"));
  EXPECT_EQ(field.state.menus.ScorePage, 0);
}

TEST(CheckTimeLimit, RespawnsWithoutADeath) {
  struct Row {
    double timeout;
    int elapsed;
    bool timePass, strikes;
  };
  for (const auto& [timeout, elapsed, timePass, strikes] :
       std::vector<Row>{{60, 59, false, false},
                        {60, 60, false, true},
                        {60, 90, true, false},
                        {0, 90, false, false}}) {
    Field field;
    SnakeRec& player = field.Put(1, {300, 300});
    field.state.level.Timeout = timeout;
    field.state.level.ElapsedSecs = elapsed;
    field.state.mode.TimePass = timePass;
    CheckTimeLimit(field.game);
    EXPECT_EQ(field.state.shell.WaitingForStart, strikes);
    EXPECT_EQ(player.Lives, strikes ? 2 : 3);
    EXPECT_EQ(field.state.level.ElapsedSecs, strikes ? 0 : elapsed);
    EXPECT_EQ(player.Deaths, 0);
    EXPECT_THAT(field.host.calls, testing::IsEmpty());
    EXPECT_EQ(field.host.overlays, std::vector(strikes ? 1 : 0, WaitOverlay::kTimeLimit));
    EXPECT_FALSE(field.state.shell.WaitingAfterTimeout);
  }
}

TEST(CheckTimeLimit, OnTheLastLifeTheGameIsOver) {
  Field field;
  field.Player().Lives = 0;
  field.state.level.Timeout = 1;
  field.state.level.ElapsedSecs = 1;
  CheckTimeLimit(field.game);
  EXPECT_THAT(field.host.overlays, ElementsAre(WaitOverlay::kTimeLimit, WaitOverlay::kGameOver));
  EXPECT_TRUE(field.state.shell.InMenu);
}

TEST(StartNewGame, ClearsCheatsAndLoadsTheFirstLevel) {
  Field field;
  ModeState& mode = field.state.mode;
  mode.GodMode = mode.NoClip = mode.Cheated = mode.TimePass = true;
  StartNewGame(field.game);
  EXPECT_FALSE(mode.GodMode || mode.NoClip || mode.Cheated);
  EXPECT_TRUE(mode.TimePass);
  EXPECT_THAT(field.host.calls, ElementsAre("level .\\lvl\\lvl1.dat"));
}

}  // namespace
}  // namespace coilrun
