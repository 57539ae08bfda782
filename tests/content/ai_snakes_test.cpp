#include "content/ai_snakes.h"

#include <set>
#include <string>
#include <tuple>

#include <gmock/gmock.h>

#include "support/fake_files.h"

namespace coilrun {
namespace {

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
  using Row = std::tuple<std::string, int, bool, std::set<std::string>>;
  const std::string blank(98, '\n');
  const Row rows[] = {
      {"Ann\r\n\r\nBob\r\n   \r\nAnn\r\n", 4, true, {"<bot> Ann", "<bot> Bob", "AI_Snake 3"}},
      {blank + "Last\nTooLate\n", 3, true, {"<bot> Last", "AI_Snake 2"}},
      {"\r\n\r\n", 200, true, {"AI_Snake 15"}},
      {"", 2, false, {}},
      {"", 1, true, {}}};
  for (const auto& [file, snakes, done, names] : rows) {
    State state;
    FakeFiles files;
    files.Put(".\\AI_Names.lst", file);
    state.mode.NumSnakes = snakes;
    for (int run = 0; run < 20; ++run) {
      EXPECT_EQ(SetupAiSnakes(state, files), done) << file << snakes;
      std::set<std::string> seen;
      for (const SnakeRec& snake : state.Snakes) seen.insert(snake.Name);
      EXPECT_THAT(seen, testing::IsSupersetOf(names)) << file;
    }
  }
}

TEST(ChooseAiModel, DrawsWhenAllModelsAreHeld) {
  State state;
  state.LastModel = 2;
  state.Snakes(1).Model = 1;
  state.Snakes(2).Model = 2;
  std::set<int> chosen;
  for (int i = 0; i < 100; ++i) chosen.insert(ChooseAiModel(state));
  EXPECT_EQ(chosen, (std::set<int>{0, 1, 2}));
  state.LastModel = -1;
  EXPECT_EQ(ChooseAiModel(state), 0);
}

}  // namespace
}  // namespace coilrun
