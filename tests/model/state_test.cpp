#include "model/state.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/feed.h"
#include "model/shown_model.h"

namespace coilrun {
namespace {

using testing::ElementsAre;

std::vector<std::string> Feed(const State& state) {
  return {state.feed.MsgLines.begin(), state.feed.MsgLines.end()};
}

TEST(MessagePrint, KeepsTheLastFiveLinesAndAgesThem) {
  State state;
  for (const char* text : {"1", "2", "3", "4", "5", "6"}) MessagePrint(state, text);
  EXPECT_THAT(Feed(state), ElementsAre("2", "3", "4", "5", "6"));

  AgeMessages(state);
  EXPECT_EQ(state.feed.MsgLines(1), "2");
  AgeMessages(state);
  EXPECT_THAT(Feed(state), ElementsAre("3", "4", "5", "6", ""));
  EXPECT_EQ(state.feed.MsgAge, 0);
}

TEST(ConsolePrint, EndsLinesAndTellsTheFeedInDebugMode) {
  State state;
  ConsolePrint(state, "quiet");
  EXPECT_EQ(state.feed.Console(5), "quiet\r\n");
  EXPECT_EQ(state.feed.MsgLines(1), "");
  state.shell.DebugMode = true;
  ConsolePrint(state, "loud\r\n");
  EXPECT_EQ(state.feed.Console(4), "quiet\r\n");
  EXPECT_EQ(state.feed.MsgLines(1), "loud\r\n");
}

TEST(ResetSnakeBody, ParksAllCellsButTheNeck) {
  State state;
  SnakeRec& snake = state.Snakes(2);
  EXPECT_EQ(snake.Seg(0).X, -20) << "never used";
  snake.Length = 7;
  snake.Grow = 3;
  for (SegRec& seg : snake.Seg) seg = {100, 100, Dir::kFL};
  ResetSnakeBody(state, 2);
  EXPECT_EQ(snake.Length, 1);
  EXPECT_EQ(snake.Grow, 0);
  EXPECT_EQ(snake.Seg(0).X, 100);
  EXPECT_EQ(snake.Seg(100).X, -20);
  EXPECT_EQ(snake.Seg(1).Dir, Dir::kNone);
}

TEST(ShownModel, ANumberWithoutAPackShowsTheFirst) {
  State state;
  EXPECT_EQ(ShownModel(state, 5), 5) << "no pack at all";
  state.LastModel = 2;
  for (const auto& [model, shown] : {std::pair{0, 0}, {2, 2}, {3, 0}, {99, 0}, {-1, 0}}) {
    EXPECT_EQ(ShownModel(state, model), shown) << model;
  }
}

TEST(Rnd, GivesTheSameNumbersEverywhere) {
  Rnd first;
  Rnd second;
  EXPECT_EQ(first.Next(), second.Next());
  first.Reseed(5);
  first.Reseed(5);
  second.Reseed(5);
  EXPECT_NE(first.Next(), second.Next()) << "two reseeds with one number still differ";
  Rnd pinned;
  pinned.Reseed(1);
  EXPECT_THAT((std::array{pinned.Below(1000), pinned.Below(1000), pinned.Below(1000)}),
              ElementsAre(492, 682, 996));
  for (int i = 0; i < 1000; ++i) ASSERT_LT(pinned.Below(6), 6);
  EXPECT_EQ(pinned.Below(0.5), 0);
  for (const int count : {0, 1, 2, 3, 1000, 20000}) {
    Rnd walked;
    Rnd skipped;
    for (int i = 0; i < count; ++i) walked.Next();
    skipped.Skip(static_cast<std::uint64_t>(count));
    EXPECT_EQ(skipped.Next(), walked.Next()) << count;
  }
}

TEST(Table, RefusesSlotsThatItDoesNotHave) {
  State state;
  EXPECT_THROW(state.Walls(0), std::out_of_range);
  EXPECT_THROW(state.Walls(682), std::out_of_range);
  EXPECT_NO_THROW(state.Snakes(1).Seg(0));
}

TEST(Saturating, StopsAtTheEndsOfItsRange) {
  Int16 score = 32760;
  score += 100;
  EXPECT_EQ(score, 32767);
  score -= 100000;
  EXPECT_EQ(score, -32768);
}

TEST(UserItemTypes, AreWallsByExactWordsAndPicturesByBeginnings) {
  using enum UserItemType;
  const std::pair<const char*, UserItemType> rows[] = {{"", kNone},
                                                       {"ice", kNone},
                                                       {"Wall", kNone},
                                                       {"wall", kWall},
                                                       {"wall_no_tnt", kHardWall},
                                                       {"wallpaper", kPicture},
                                                       {"wall ", kPicture},
                                                       {"ani_wall", kMovingWall},
                                                       {"ani_wall_no_tnt", kMovingHardWall},
                                                       {"ani_wall_no_tnt2", kMovingPicture}};
  for (const auto& [text, type] : rows) {
    const Written<UserItemType> written{text};
    EXPECT_EQ(UserItemType{written}, type) << text;
    EXPECT_EQ(written.Text(), text);
  }
}

}  // namespace
}  // namespace coilrun
