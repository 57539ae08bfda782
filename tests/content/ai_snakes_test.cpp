#include "content/ai_snakes.h"

#include <set>

#include <gtest/gtest.h>

#include "support/fake_files.h"

namespace coilrun {
namespace {

constexpr const char* kNames = ".\\AI_Names.lst";

TEST(SetupAiSnakes, PreparesTheSnakesInPlay) {
  State state;
  const FakeFiles files;
  state.mode.NumSnakes = 3;
  state.LastModel = 4;
  state.Snakes(1).Model = 1;
  state.Snakes(3).StartX = 70;
  state.Snakes(3).StartY = 90;
  state.Snakes(3).BaseInterval = 80;
  EXPECT_TRUE(SetupAiSnakes(state, files));
  const SnakeRec& third = state.Snakes(3);
  EXPECT_EQ(third.Dir, Dir::kForw);
  EXPECT_EQ(third.NextDir, Dir::kForw);
  EXPECT_EQ(third.Head(), (Point{70, 90}));
  EXPECT_EQ(third.Interval, 80);
  EXPECT_EQ(state.Snakes(2).Model, 2);
  EXPECT_EQ(third.Model, 3);
  EXPECT_EQ(state.Snakes(2).Name, "AI_Snake 1");
  EXPECT_EQ(third.Name, "AI_Snake 2");
  EXPECT_TRUE(state.timers.iWait(2).Enabled);
  EXPECT_FALSE(state.timers.iWait(3).Enabled);
  EXPECT_EQ(state.Snakes(4).Name, "");
}

TEST(SetupAiSnakes, GivesEachSnakeANameOfItsOwnWhileThereAreAny) {
  State state;
  FakeFiles files;
  files.Put(kNames, "Ann\r\n\r\nBob\r\n   \r\nAnn\r\n");
  state.mode.NumSnakes = 4;
  for (int run = 0; run < 20; ++run) {
    ASSERT_TRUE(SetupAiSnakes(state, files));
    const std::set<std::string> names = {state.Snakes(2).Name, state.Snakes(3).Name};
    EXPECT_EQ(names, (std::set<std::string>{"<bot> Ann", "<bot> Bob"}));
    EXPECT_EQ(state.Snakes(4).Name, "AI_Snake 3");
  }
}

TEST(SetupAiSnakes, DrawsFromTheFirst99Lines) {
  State state;
  FakeFiles files;
  std::string text;
  for (int line = 1; line <= 98; ++line) text += "\n";
  files.Put(kNames, text + "Last\nTooLate\n");
  state.mode.NumSnakes = 3;
  EXPECT_TRUE(SetupAiSnakes(state, files));
  EXPECT_EQ(state.Snakes(2).Name, "<bot> Last");
  EXPECT_EQ(state.Snakes(3).Name, "AI_Snake 2");
}

TEST(SetupAiSnakes, FailsOnAnEmptyFileOnlyWhenNamesAreWanted) {
  State state;
  FakeFiles files;
  files.Put(kNames, "");
  state.mode.NumSnakes = 2;
  EXPECT_FALSE(SetupAiSnakes(state, files));
  state.mode.NumSnakes = 1;
  EXPECT_TRUE(SetupAiSnakes(state, files));
  files.Put(kNames, "\r\n\r\n");
  state.mode.NumSnakes = 200;
  EXPECT_TRUE(SetupAiSnakes(state, files));
  EXPECT_EQ(state.Snakes(16).Name, "AI_Snake 15");
}

TEST(ChooseAiModel, DrawsWhenAllModelsAreHeld) {
  State state;
  state.LastModel = 2;
  state.Snakes(1).Model = 1;
  state.Snakes(2).Model = 2;
  std::set<int> drawn;
  for (int i = 0; i < 100; ++i) drawn.insert(ChooseAiModel(state));
  EXPECT_EQ(drawn, (std::set<int>{0, 1, 2}));
  state.LastModel = -1;
  EXPECT_EQ(ChooseAiModel(state), 0);
}

}  // namespace
}  // namespace coilrun
