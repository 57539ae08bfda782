#include "game/shown_snakes.h"

#include "field.h"

namespace coilrun {
namespace {

TEST(PlaceWaitingSnakes, PutsThoseThatStandOrWaitOnTheirStarts) {
  for (const bool waiting : {false, true}) {
    Field field;
    field.Put(1, {300, 300});
    field.Put(2, {300, 300}, Dir::kNone);
    field.state.shell.WaitingForStart = waiting;
    PlaceWaitingSnakes(field.state);
    EXPECT_EQ(field.Snake(1).X, waiting ? 100 : 300);
    EXPECT_EQ(field.Snake(2).X, 130);
  }
}

/// Four snakes, the second and the fourth immortal; "x" is a snake that shows.
std::string Shown(const SnakesShown& shown) {
  std::string text;
  for (int s = 1; s <= 4; ++s) text += shown(s) ? 'x' : '-';
  return text;
}
struct Blinking : Field {
  explicit Blinking(int seconds) {
    Put(4, {300, 300});
    for (const int s : {2, 4}) {
      Snake(s).Immortal = true;
      Snake(s).ImmortalSecs = seconds;
    }
  }
};

TEST(SnakesShown, OneToggleServesAllAndFewSecondsHide) {
  for (const auto form : {SnakesShownInLoop, SnakesShownInFrame}) {
    Blinking many(3);
    EXPECT_EQ(Shown(form(many.state)), "xxx-");
    Blinking few(2);
    EXPECT_EQ(Shown(form(few.state)), "xxx-");
    EXPECT_EQ(Shown(form(few.state)), "x-x-");
    Blinking over(0);
    EXPECT_EQ(Shown(form(over.state)), "xxx-");
    EXPECT_EQ(Shown(form(over.state)), "xxxx") << "mortal from the next frame on";
    EXPECT_THAT(over.Feed(),
                testing::ElementsAre("Bot2 is no longer immortal!", "Bot4 is no longer immortal!"));
  }
}

TEST(EndSpentImmortality, EndsItInPassesWithoutABlinkToo) {
  Blinking over(0);
  over.Snake(2).ImmortalSecs = 1;
  EndSpentImmortality(over.state);
  EXPECT_TRUE(over.Snake(2).Immortal);
  EXPECT_FALSE(over.Snake(4).Immortal);
  EXPECT_THAT(over.Feed(), testing::ElementsAre("Bot4 is no longer immortal!"));
}

TEST(SnakesShown, AWaitingSnakeEndsTheLoopsWalkAndIsSkippedInAFrame) {
  Blinking field(9);
  field.state.shell.WaitingForStart = true;
  EXPECT_EQ(Shown(SnakesShownInFrame(field.state)), "-x--");
  EXPECT_EQ(Shown(SnakesShownInLoop(field.state)), "----");
  field.Player().Immortal = true;
  field.Player().ImmortalSecs = 9;
  EXPECT_EQ(Shown(SnakesShownInLoop(field.state)), "x---");
}

}  // namespace
}  // namespace coilrun
