#include <gmock/gmock.h>

#include "scenario/game_run.h"

namespace coilrun {
namespace {

using nlohmann::json;
using ::testing::Contains;
using ::testing::SizeIs;

constexpr int kPastTheFade = 700;

std::vector<std::string> CentredTexts(const json& state) {
  std::vector<std::string> texts;
  for (const json& line : state["CenterLines"]) texts.push_back(line["Text"]);
  return texts;
}

std::vector<std::string> DrawnTexts(const json& state) {
  std::vector<std::string> texts;
  for (const json& drawn : state["Drawn"]) texts.push_back(drawn["Text"]);
  return texts;
}

TEST(Progress, KeysWaitWithTheLevelScreenAndTheScreenWithTheDeath) {
  const ProgramFolder folder;
  const auto script = ScriptText()
                          .At(500, "tap 59")
                          .At(600, "tap 200")
                          .At(800, "set LevelIntroPending true")
                          .At(800, "tap 203")
                          .At(900, "state")
                          .At(1000, "tap 59")
                          .At(1100, "set Snakes.1.Y 30")
                          .At(1500, "tap 59")
                          .At(1600, "state")
                          .At(1600, "end");
  const GameRun run = folder.Play(script.Text(), {"/L=lvl3.dat"});
  ASSERT_THAT(run.states, SizeIs(2)) << run.errors;
  EXPECT_EQ(run.states[0]["Snakes"][0]["NextDir"], "Forw");
  EXPECT_EQ(run.states[1]["WaitingAfterDeath"], true);
  EXPECT_EQ(run.states[1]["ShowLevelScreen"], false);
}

TEST(Progress, ANewHighScoreAsksForTheNameThatItLacks) {
  const ProgramFolder folder;
  const std::string user = (folder.Home() / "user").string();
  const auto script = ScriptText()
                          .At(500, "tap 59")
                          .At(600, "set Snakes.1.TotalScore 9500")
                          .At(600, "set nextLvl .\\lvl\\END")
                          .At(600, "set reqYellow 0")
                          .At(600, "set reqScore 0")
                          .At(600, "tap 203")
                          .At(1000, "tap 28")
                          .At(1900, "type eva")
                          .At(2200, "state")
                          .At(2200, "shot name.png")
                          .At(2300, "tap 28")
                          .At(2400, "type god")
                          .At(2700, "tap 1")
                          .At(2900, "state")
                          .At(3000, "end");
  const GameRun run = folder.PlayAsShipped(script.Text(), {"/L=lvl3.dat", "--user", user});
  ASSERT_THAT(run.states, SizeIs(2)) << run.errors;
  EXPECT_EQ(run.states[0]["InputTarget"], "ScoreName");
  EXPECT_EQ(run.states[0]["HiScore"][1]["Name"], "eva");
  EXPECT_EQ(run.states[0]["CheatLine"], "");
  EXPECT_EQ(run.states[1]["CheatLine"], "god");
  const GameRun later = folder.PlayAsShipped("700 state\n700 end", {"--user", user});
  EXPECT_EQ(later.states[0]["HiScore"][1]["Name"], "eva");
  EXPECT_EQ(later.states[0]["HiScore"][1]["Score"], 9800) << "with the time bonus";
  EXPECT_EQ(later.states[0]["Snakes"][0]["Name"], "eva");
}

TEST(Progress, ACompletedLevelLeadsIntoTheNext) {
  const ProgramFolder folder;
  const auto script = ScriptText()
                          .At(500, "tap 59")
                          .At(600, "tap 203")
                          .At(900, "set nextLvl .\\lvl\\lvl3.dat")
                          .At(900, "set Timeout 120")
                          .At(900, "set Snakes.1.Score 70")
                          .At(900, "set reqYellow 0")
                          .At(900, "set reqScore 0")
                          .At(1500, "state")
                          .At(1600, "tap 28")
                          .At(1800, "state")
                          .At(1800, "end");
  const GameRun run = folder.Play(script.Text(), {"/L=lvl1.dat"});
  ASSERT_THAT(run.states, SizeIs(2)) << run.errors;
  EXPECT_THAT(CentredTexts(run.states[0]), Contains("Next Level!!!"));
  EXPECT_THAT(CentredTexts(run.states[0]), Contains("Time Bonus: 120 pts"));
  EXPECT_THAT(DrawnTexts(run.states[0]), Contains("Your Score: 190"));
  EXPECT_EQ(run.states[0]["lvlTime"], false);
  EXPECT_EQ(run.states[1]["ShowLevelScreen"], true);
  EXPECT_EQ(run.states[1]["Snakes"][0]["TotalScore"], 190);
  EXPECT_EQ(run.states[1]["Snakes"][0]["Score"], 0);
  EXPECT_NE(run.states[1]["lvlName"], run.states[0]["lvlName"]);
}

TEST(Progress, TheFourthDeathEndsTheGameAndEntersTheTable) {
  const ProgramFolder folder;
  ScriptText script;
  script.At(500, "tap 59")
      .At(550, "set hasOpenWalls false")
      .At(550, "set Snakes.1.TotalScore 9500");
  script.At(550, "set numWalls 0").At(550, "set reqYellow 99");
  for (int death = 0; death < 4; ++death) {
    const int at = 600 + death * 3000;
    script.At(at, "tap 205").At(at + 2500, "state").At(at + 2600, "tap 28");
  }
  script.At(12700, "state").At(12800, "tap 28").At(13000 + kPastTheFade, "state");
  script.At(13000 + kPastTheFade, "end");
  const GameRun run = folder.Play(script.Text(), {"/L=lvl1.dat"});
  ASSERT_THAT(run.states, SizeIs(6)) << run.errors;
  for (int death = 0; death < 4; ++death) {
    const json& state = run.states[static_cast<std::size_t>(death)];
    EXPECT_EQ(state["WaitingAfterDeath"], true) << death;
    EXPECT_EQ(state["Snakes"][0]["Lives"], 3 - death);
    EXPECT_THAT(DrawnTexts(state), Contains("Uh - You loose a live..."));
  }
  EXPECT_THAT(DrawnTexts(run.states[4]), Contains("This is a new High Score!"));
  const json& menus = run.states[5];
  EXPECT_EQ(menus["InMenu"], true);
  EXPECT_EQ(menus["NoGameRunning"], true);
  EXPECT_EQ(menus["ScorePage"], 1);
  EXPECT_EQ(menus["HiScore"][1]["Score"], 9500);
  EXPECT_EQ(menus["HiScore"][2]["Score"], 8000) << "nothing moves down";
  EXPECT_EQ(menus["Snakes"][0]["Lives"], 3);
  EXPECT_EQ(menus["Snakes"][0]["TotalScore"], 0);
}

TEST(Progress, TheTimeLimitCostsALifeAndWaitsForTheStart) {
  const ProgramFolder folder;
  const auto script = ScriptText()
                          .At(500, "tap 59")
                          .At(600, "tap 203")
                          .At(600, "set hasOpenWalls true")
                          .At(600, "set numWalls 0")
                          .At(600, "set reqYellow 99")
                          .At(600, "set Timeout 2")
                          .At(4000, "state")
                          .At(4100, "tap 28")
                          .At(4300, "state")
                          .At(4300, "end");
  const GameRun run = folder.Play(script.Text(), {"/L=lvl1.dat"});
  ASSERT_THAT(run.states, SizeIs(2)) << run.errors;
  EXPECT_EQ(run.states[0]["WaitingAfterTimeout"], true);
  EXPECT_THAT(DrawnTexts(run.states[0]), Contains("Time Limit Hit!"));
  EXPECT_EQ(run.states[1]["WaitingForStart"], true);
  EXPECT_EQ(run.states[1]["Snakes"][0]["Lives"], 2);
  EXPECT_EQ(run.states[1]["ElapsedSecs"], 0);
}

TEST(Progress, ALevelThatCannotBeLoadedSaysSoInTheMenus) {
  const ProgramFolder folder;
  const auto script = ScriptText()
                          .At(500, "tap 59")
                          .At(600, "set nextLvl .\\lvl\\none.dat")
                          .At(600, "set reqYellow 0")
                          .At(600, "set reqScore 0")
                          .At(1500, "tap 28")
                          .At(2000 + kPastTheFade, "state")
                          .At(2100 + kPastTheFade, "tap 208")
                          .At(2300 + kPastTheFade, "state")
                          .At(2300 + kPastTheFade, "end");
  const GameRun run = folder.Play(script.Text(), {"/L=lvl1.dat"});
  ASSERT_THAT(run.states, SizeIs(2)) << run.errors;
  EXPECT_EQ(run.states[0]["InMenu"], true);
  EXPECT_EQ(run.states[0]["NoGameRunning"], true);
  EXPECT_THAT(DrawnTexts(run.states[0]), Contains("Level .\\lvl\\none.dat does not exist"));
  EXPECT_EQ(run.states[1]["StatusText"], "Modify game options");
}

}  // namespace
}  // namespace coilrun
