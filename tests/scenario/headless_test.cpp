#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <vector>

#include <gmock/gmock.h>

#include "scenario/game_run.h"

namespace coilrun {
namespace {

using nlohmann::json;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr const char* kExample = R"(
1000 tap 59          # F1 closes the level screen
1200 tap 203         # Left: releases the snakes, turns the player's
2200 state
2200 shot left.png
2200 end
)";

/// Compares with the committed trace and reports differences field by field.
void ExpectCommittedTrace(const GameRun& run, const std::string& name) {
  const std::string file = COILRUN_SOURCE_DIR "/tests/scenario/expected/" + name;
  if (std::getenv("COILRUN_UPDATE_GOLDEN") != nullptr) {
    std::ofstream(file, std::ios::binary) << run.trace;
    return;
  }
  const std::string expected = ReadFile(file);
  if (run.trace == expected) return;
  const std::string seen = COILRUN_BUILD_DIR "/seen-" + name;
  std::ofstream(seen, std::ios::binary) << run.trace;
  const json before = json::parse(expected, nullptr, false);
  ADD_FAILURE() << "The trace, kept in " << seen << ", is not that of " << file << ":\n"
                << json::diff(before, run.states.empty() ? json() : run.states.front()).dump(1);
}

TEST(Headless, TheExamplePlaysTheSameEveryTime) {
  const ProgramFolder folder;
  const GameRun first = folder.Play(kExample, {"/L=lvl3.dat"});
  const std::string firstPicture = ReadFile(folder.Home() / "left.png");
  const GameRun second = folder.Play(kExample, {"/L=lvl3.dat"});

  EXPECT_EQ(first.exitCode, 0);
  EXPECT_THAT(first.errors, IsEmpty());
  ASSERT_THAT(first.states, SizeIs(1));
  EXPECT_EQ(first.states[0]["ms"], 2200);
  EXPECT_EQ(first.states[0]["flips"], 220);
  EXPECT_EQ(first.states[0]["Snakes"][0]["Dir"], "Left");
  EXPECT_EQ(first.trace, second.trace);
  EXPECT_THAT(firstPicture, StartsWith("\x89PNG"));
  EXPECT_EQ(firstPicture.substr(16, 8), std::string("\0\0\x02\x80\0\0\x01\xE0", 8));
  EXPECT_EQ(firstPicture, ReadFile(folder.Home() / "left.png"));
  ExpectCommittedTrace(first, "example.jsonl");
}

TEST(Headless, AnotherSeedPlacesItemsElsewhere) {
  const ProgramFolder folder;
  const GameRun zero = folder.Play("1000 state\n1000 end", {"/L=lvl3.dat"});
  const GameRun seven = folder.Play("1000 state\n1000 end", {"/L=lvl3.dat", "--seed", "7"});
  ASSERT_THAT(zero.states, SizeIs(1));
  ASSERT_THAT(seven.states, SizeIs(1));
  EXPECT_NE(zero.states[0]["Yellow"], seven.states[0]["Yellow"]);
}

struct OptionCase {
  std::vector<std::string> arguments;
  int exitCode;
  std::string errors;  ///< a part of them
};

TEST(Headless, WrongOptionsAndMissingFilesHaveTheirMessageAndExitCode) {
  const ProgramFolder folder;
  const std::string data = folder.Data().string();
  std::filesystem::create_directory(folder.Home() / "empty");
  const std::vector<OptionCase> cases = {
      {{"--sideways"}, 2, "--sideways"},
      {{"--headless", "--fps"}, 2, "--fps"},
      {{"--headless", "--fps", "0"}, 2, "--fps"},
      {{"--headless", "--fps", "1001"}, 2, "--fps"},
      {{"--headless", "--seed", "x"}, 2, "--seed"},
      {{"--headless", "--data", data, "--script", "none.txt"}, 2, "none.txt"},
      {{"--headless", "--data", data, "--trace", "none/trace"}, 2, "none/trace"},
      {{"--headless", "--data", "empty"}, 1, "box: INIT_Main: Error No \\lvl folder! ("},
      {{"--headless", "--data", "empty"},
       1,
       "): The Level files were not found.\\nThis EXE (Coilrun.exe) must be located in the folder "
       "where 'lvl' and 'gfx.snr' are.\\nPut it there and it will work\n"},
      {{"--headless", "--data", data, "/L=lvl99.dat"},
       1,
       "box: SetCommand_LoadLevel: Level does not exist!: Level lvl99.dat does not exist!\n"},
  };
  for (const OptionCase& each : cases) {
    const GameRun run = folder.Run(each.arguments);
    EXPECT_EQ(run.exitCode, each.exitCode) << each.arguments.back();
    EXPECT_THAT(run.errors, HasSubstr(each.errors));
    EXPECT_EQ(std::ranges::count(run.errors, '\n'), 1) << run.errors;
  }
  EXPECT_EQ(folder.Run({"--help"}).exitCode, 0);
  EXPECT_THAT(folder.Run({"--version"}).output, HasSubstr("1.2.24"));
}

TEST(Headless, ABadScriptEndsWithTheLineToBlame) {
  const ProgramFolder folder;
  struct Case {
    std::string script;
    std::string errors;
  };
  const std::vector<Case> cases = {
      {"5 state\n4 end", "script.txt:2: "},
      {"5 dance", "script.txt:1: "},
      {"5 set Nonsense 1", "script.txt:1: Nonsense: "},
      {"5 set Snakes.1.TNT x", "script.txt:1: Snakes.1.TNT: "},
      {"5 shot no/such/folder.png", "script.txt:1: no/such/folder.png"},
  };
  for (const Case& each : cases) {
    const GameRun run = folder.Play(each.script);
    EXPECT_EQ(run.exitCode, 2) << each.script;
    EXPECT_THAT(run.errors, HasSubstr(each.errors));
    EXPECT_THAT(run.errors, EndsWith("\n"));
  }
}

TEST(Headless, ARunThatNobodyLeavesEndsAfterTenMinutes) {
  const ProgramFolder folder;
  const GameRun run = folder.Play("600000 state", {"--fps", "5"});
  EXPECT_EQ(run.exitCode, 2);
  ASSERT_THAT(run.states, SizeIs(1));
  EXPECT_EQ(run.states[0]["InMenu"], true);
  EXPECT_EQ(run.states[0]["flips"], 3000);
  EXPECT_THAT(run.errors, HasSubstr("ten minutes"));
}

TEST(Headless, TheSnakeKeepsItsPaceAtEveryFrameRate) {
  const ProgramFolder folder;
  for (const char* const fps : {"60", "75", "100", "144"}) {
    const auto script = ScriptText()
                            .At(500, "tap 59")
                            .At(550, "set GodMode true")
                            .At(600, "tap 203")
                            .At(1000, "state")
                            .At(11000, "state")
                            .At(11000, "end");
    const GameRun run = folder.Play(script.Text(), {"/L=lvl1.dat", "--fps", fps});
    ASSERT_THAT(run.states, SizeIs(2)) << run.errors;
    const int from = run.states[0]["Snakes"][0]["X"];
    const int to = run.states[1]["Snakes"][0]["X"];
    EXPECT_NEAR(from - to, 20 * 100, 20) << "in ten seconds at " << fps << " frames a second";
  }
}

TEST(Headless, AnItemPutInTheWayIsEaten) {
  const ProgramFolder folder;
  auto script = ScriptText()
                    .At(500, "tap 59")
                    .At(600, "set Yellow.1.X 450")
                    .At(600, "set Yellow.1.Y 230")
                    .At(600, "tap 203")
                    .LookEvery(50, 650, 3000)
                    .At(3000, "end");
  const GameRun run = folder.Play(script.Text(), {"/L=lvl1.dat"});
  const auto eaten =
      FirstWhere(run, [](const json& state) { return state["Snakes"][0]["Score"] != 0; });
  ASSERT_TRUE(eaten) << run.errors;
  const json& snake = (*eaten)["Snakes"][0];
  EXPECT_EQ(snake["Score"], 10);
  EXPECT_EQ(snake["YellowEaten"], 1);
  EXPECT_NEAR(snake["X"].get<int>(), 450, 20);
}

TEST(Headless, LosingTheFocusPausesAndClosingLeaves) {
  const ProgramFolder folder;
  const auto script = ScriptText()
                          .At(500, "tap 59")
                          .At(600, "tap 203")
                          .At(1000, "focus lost")
                          .At(1500, "state")
                          .At(2000, "focus gained")
                          .At(2500, "state")
                          .At(2600, "close");
  const GameRun run = folder.Play(script.Text(), {"/L=lvl1.dat"});
  EXPECT_EQ(run.exitCode, 0) << run.errors;
  ASSERT_THAT(run.states, SizeIs(2));
  EXPECT_EQ(run.states[0]["IsPause"], true);
  EXPECT_EQ(run.states[1]["IsPause"], true);
  EXPECT_EQ(run.states[0]["Snakes"][0]["X"], run.states[1]["Snakes"][0]["X"]);
}

}  // namespace
}  // namespace coilrun
