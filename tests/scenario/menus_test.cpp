#include <fstream>

#include <gmock/gmock.h>

#include "scenario/game_run.h"

namespace coilrun {
namespace {

using nlohmann::json;
using ::testing::SizeIs;

constexpr int kTap = 100;

/// Taps keys one after the other, with time for the menus to follow.
class Fingers {
 public:
  explicit Fingers(int startMillis) : now_(startMillis) {}

  Fingers& Tap(int key, int times = 1) {
    for (; times > 0; --times) Then("tap " + std::to_string(key), kTap);
    return *this;
  }
  Fingers& Type(const std::string& text) {
    return Then("type " + text, static_cast<int>(text.size()) * 60 + kTap);
  }
  Fingers& Then(const std::string& command, int millis = kTap) {
    script_.At(now_, command);
    now_ += millis;
    return *this;
  }
  std::string Text() const { return script_.Text(); }

 private:
  ScriptText script_;
  int now_;
};

constexpr int kUp = 200;
constexpr int kDown = 208;
constexpr int kRight = 205;
constexpr int kEnter = 28;
constexpr int kEscape = 1;
constexpr int kTab = 15;
constexpr int kF1 = 59;

TEST(Menus, EveryOptionDoesWhatItSaysAndIsFoundAgain) {
  const ProgramFolder folder;
  const std::string user = (folder.Home() / "user").string();
  Fingers change(500);
  change.Tap(kDown).Tap(kEnter);
  for (int line = 1; line <= 3; ++line) change.Tap(kRight).Tap(kDown);
  change.Tap(kEnter).Tap(kDown).Tap(kEnter).Tap(kDown).Tap(kRight).Tap(kDown).Tap(kEnter).Tap(
      kDown);
  change.Tap(kEnter).Type("ada 7").Tap(kDown);
  for (int line = 9; line <= 12; ++line) change.Tap(kEnter).Tap(kDown);
  change.Tap(kRight).Tap(kDown).Tap(kRight).Tap(kEscape).Then("state").Then("end");
  const GameRun changed = folder.Play(change.Text(), {"--user", user});
  const GameRun found = folder.Play("700 state\n700 end", {"--user", user});
  ASSERT_THAT(changed.states, SizeIs(1)) << changed.errors;
  ASSERT_THAT(found.states, SizeIs(1)) << found.errors;

  const json expected = {{"MaxSpeed", 31},        {"MinSpeed", 151},        {"GlobalSpeed", 101},
                         {"NoSpeedReset", true},  {"IncSpeed", true},       {"SpeedRate", 1},
                         {"ShowFPS", false},      {"AnimatedItems", false}, {"SndEnabled", false},
                         {"KiSndEnabled", false}, {"MusicEnabled", false},  {"MusicVolume", 31}};
  for (const auto& [name, value] : expected.items()) {
    EXPECT_EQ(changed.states[0][name], value) << name;
    EXPECT_EQ(found.states[0][name], value) << name << " in the second run";
  }
  for (const json& state : {changed.states[0], found.states[0]}) {
    EXPECT_EQ(state["Snakes"][0]["Name"], "ada 7");
    EXPECT_EQ(state["Snakes"][0]["Model"], 2);
  }
}

TEST(Menus, AGameIsGivenUpOnlyByTwoEnters) {
  const ProgramFolder folder;
  Fingers keys(500);
  keys.Tap(kF1).Then("set Snakes.1.Score 7").Tap(kEscape).Then("state", 600);
  keys.Tap(kEnter).Then("state").Tap(kDown).Tap(kUp).Tap(kEnter).Then("state");
  keys.Tap(kEnter).Then("state").Then("end");
  const GameRun run = folder.PlayAsShipped(keys.Text(), {"/L=lvl3.dat"});
  ASSERT_THAT(run.states, SizeIs(4)) << run.errors;
  for (const std::size_t asked : {1, 2}) {
    EXPECT_EQ(run.states[asked]["StatusText"], "Press Enter again to give up the running game");
    EXPECT_EQ(run.states[asked]["Snakes"][0]["Score"], 7);
  }
  EXPECT_EQ(run.states[3]["lvlName"], "Bare Field");
  EXPECT_EQ(run.states[3]["InMenu"], false);
}

/// Moves the mouse to one place after another on the pages.
Fingers& PointAndClick(Fingers& hand, const std::string& place) {
  return hand.Then("point " + place).Then("click left", 200);
}

TEST(Menus, AMatchIsChosenStartedAndEndedByMouse) {
  const ProgramFolder folder;
  std::ofstream(folder.Data() / "lvl" / "arena.dat")
      << "_ ;\n_ ;\n_ ;\n_ ;\n_ _ _ S _ _ 1 _ _ 2 _ _ 3 _ _ 4 _ _ 5 _ _ 6 _ _ 7 _ _ ;\n"
         "lvlName= Arena\nMatchLimit=35\n";
  Fingers hand(500);
  PointAndClick(PointAndClick(hand, "300 335"), "70 210");  // "Tab  More", "Match"
  hand.Then("point 60 220").Then("wheel down");             // deathmatch
  hand.Then("point 60 270");                                // computer snakes
  for (int snakes = -1; snakes < 7; ++snakes) hand.Then("wheel down");
  hand.Then("state");
  PointAndClick(hand, "60 335").Tap(kF1).Then("state", 600).Tap(kUp);
  hand.Then("set Snakes.4.Name Cat").Then("set Snakes.4.Frags 200", 300).Then("state");
  hand.Tap(kEnter).Then("state", 600).Then("end");
  const GameRun run = folder.Play(hand.Text());
  ASSERT_THAT(run.states, SizeIs(4)) << run.errors;
  const json& chosen = run.states[0]["More"];
  EXPECT_EQ(chosen["Page"], "match");
  EXPECT_EQ(chosen["Match"]["Mode"], "deathmatch");
  EXPECT_EQ(chosen["Match"]["Computers"], 7);
  EXPECT_EQ(run.states[1]["GameMode"], "DM");
  EXPECT_EQ(run.states[1]["NumSnakes"], 8);
  EXPECT_EQ(run.states[1]["MatchLimit"], 35);
  EXPECT_EQ(run.states[1]["More"]["Page"], "");
  std::vector<std::string> drawn;
  for (const json& text : run.states[2]["Drawn"]) drawn.push_back(text["Text"]);
  EXPECT_THAT(drawn, testing::Contains("Cat wins the match!"));
  const json& after = run.states[3];
  EXPECT_EQ(after["More"]["Page"], "match");
  EXPECT_EQ(after["More"]["Cursor"], 5);
  EXPECT_EQ(after["GameMode"], "");
  EXPECT_EQ(after["NoGameRunning"], true);
  EXPECT_EQ(after["ScorePage"], 0);
}

TEST(Menus, AKeyBoundOnThePageSteersNowAndInTheNextRun) {
  const ProgramFolder folder;
  const std::string user = (folder.Home() / "user").string();
  Fingers keys(500);
  keys.Tap(kTab).Tap(kUp).Tap(kEnter).Tap(kDown, 2).Tap(kEnter).Tap(44).Tap(kTab);
  keys.Tap(kEnter).Tap(kF1).Tap(kUp).Tap(44).Then("state", 300).Then("end");
  const GameRun bound = folder.PlayAsShipped(keys.Text(), {"--user", user});
  const GameRun found = folder.PlayAsShipped("500 state\n500 end", {"--user", user});
  ASSERT_THAT(bound.states, SizeIs(1)) << bound.errors;
  ASSERT_THAT(found.states, SizeIs(1)) << found.errors;
  EXPECT_EQ(bound.states[0]["Snakes"][0]["NextDir"], "Left");
  EXPECT_EQ(bound.states[0]["Keys"][0]["Left"], found.states[0]["Keys"][0]["Left"]);
  EXPECT_EQ(found.states[0]["Keys"][0]["Left"].back(), 44);
}

TEST(Menus, ASteeringKeyStartsALevelAndHasteIsHarmless) {
  const ProgramFolder folder;
  const auto script = ScriptText()
                          .At(500, "tap 200")  // closes the level screen and steers up
                          .At(550, "tap 30")   // A: left, then
                          .At(580, "tap 31")   // S: down, in the same step
                          .At(600, "state")
                          .At(900, "state")
                          .At(1000, "set Snakes.1.X 20")
                          .At(1000, "tap 203")
                          .At(1600, "state")
                          .At(1600, "tap 57")
                          .At(1800, "state")
                          .At(1800, "end");
  const GameRun run = folder.PlayAsShipped(script.Text(), {"/L=lvl3.dat"});
  ASSERT_THAT(run.states, SizeIs(4)) << run.errors;
  EXPECT_EQ(run.states[0]["ShowLevelScreen"], false);
  EXPECT_EQ(run.states[0]["WaitingForStart"], false);
  EXPECT_EQ(run.states[1]["Snakes"][0]["Dir"], "Back") << "up, left, down: a U-turn, step by step";
  EXPECT_EQ(run.states[1]["Snakes"][0]["Deaths"], 0);
  EXPECT_EQ(run.states[2]["WaitingAfterDeath"], true);
  EXPECT_EQ(run.states[3]["WaitingAfterDeath"], false) << "Space answers";
}

TEST(Menus, TheCursorWrapsAndExitLeavesNothingUnpacked) {
  const ProgramFolder folder;
  Fingers exit(500);
  exit.Tap(kUp).Then("state").Tap(kEnter);
  const GameRun run = folder.Play(exit.Text());
  EXPECT_EQ(run.exitCode, 0) << run.errors;
  ASSERT_THAT(run.states, SizeIs(1));
  EXPECT_EQ(run.states[0]["MainCursor"], 4);
  EXPECT_EQ(run.states[0]["StatusText"], "Exit this cool game");
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Data())) {
    const std::string extension = entry.path().extension().string();
    EXPECT_TRUE(extension != ".snc" && extension != ".wav") << entry.path();
    EXPECT_TRUE(extension != ".bmp" || entry.path().filename() == "intro.bmp") << entry.path();
  }
}

TEST(Menus, TheHiddenCommandLineRepliesAndCheats) {
  const ProgramFolder folder;
  Fingers cheat(500);
  cheat.Tap(kF1).Tap(kEscape, 1).Then("state", 700);
  cheat.Tap(kDown, 2).Tap(kEnter).Type("god").Then("state").Tap(kEnter).Type("quietfern");
  for (const char* const line :
       {"god", "noclip", "timepass", "gives", "givel", "givey3", "givep"}) {
    cheat.Type(line).Then("state");
  }
  cheat.Type("warp03").Then("state").Tap(kEscape, 2).Then("state").Then("end");
  const GameRun run = folder.Play(cheat.Text(), {"/L=lvl1.dat"});
  ASSERT_THAT(run.states, SizeIs(11)) << run.errors;
  EXPECT_EQ(run.states[1]["GodMode"], false) << "locked until the code is typed";
  const std::vector<std::string> replies = {"GOD mode activated",
                                            "NoClipping mode activated",
                                            "NoTimeChecking mode activated",
                                            "100 pts given...",
                                            "one live given...",
                                            "3 items given...",
                                            "atomic power given...",
                                            "Level loaded... (Press ESC twice)"};
  for (std::size_t i = 0; i < replies.size(); ++i) {
    EXPECT_EQ(run.states[i + 2]["StatusText"], "Cheater! - " + replies[i]);
    EXPECT_EQ(run.states[i + 2]["CheatLine"], "");
  }
  const json& player = run.states[8]["Snakes"][0];
  EXPECT_EQ(player["Score"], 0) << "100 given, 100 paid for atomic power";
  EXPECT_EQ(player["Lives"], 4);
  EXPECT_EQ(player["YellowEaten"], 3);
  EXPECT_EQ(player["ImmortalSecs"], 20);
  EXPECT_EQ(run.states[10]["InMenu"], false);
  EXPECT_EQ(run.states[10]["Cheated"], true);
}

}  // namespace
}  // namespace coilrun
