#include "field.h"
#include "game/appearance.h"
#include "game/shown_snakes.h"
#include "game/speed.h"

namespace coilrun {
namespace {

TEST(TickSecond, CountsImmortalityAndTheRunningClock) {
  Field field;
  field.Put(2, {300, 300}).Immortal = true;
  field.Snake(2).ImmortalSecs = field.Snake(3).ImmortalSecs = 5;
  field.Snake(3).Immortal = true;
  TickSecond(field.state);
  EXPECT_EQ(field.Snake(2).ImmortalSecs, 4);
  EXPECT_EQ(field.Snake(3).ImmortalSecs, 5) << "not in play";
  EXPECT_EQ(field.state.level.ElapsedSecs, 0) << "the clock stands";
  field.state.shell.lvlTime = true;
  field.state.level.ElapsedSecs = 32000;
  for (int tick = 0; tick < 3; ++tick) TickSecond(field.state);
  EXPECT_EQ(field.state.level.ElapsedSecs, 32001);
}

TEST(TickSecond, TheSpeedOptionStepsEverySecondTickDownToTheLimit) {
  Field field;
  field.state.settings.SpeedRate = 12.5;
  field.state.settings.MaxSpeed = 70.4;
  field.state.settings.IncSpeed = true;
  const Timer& timer = field.state.timers.iWait(0);
  for (int tick = 0; tick < 3; ++tick) TickSecond(field.state);
  EXPECT_EQ(timer.Interval, 100) << "the clock stands";
  field.state.shell.lvlTime = true;
  for (const int interval : {100, 87, 87, 75, 75, 70, 70, 70}) {
    TickSecond(field.state);
    EXPECT_EQ(timer.Interval, interval);
  }
  field.state.settings.IncSpeed = false;
  for (int tick = 0; tick < 4; ++tick) TickSecond(field.state);
  EXPECT_EQ(field.state.settings.SpeedGain, 50);
}

TEST(SpeedReset, GivesTheNormalPeriodBack) {
  struct Row {
    bool keeps, option, hides;
    int interval;
    bool red;
  };
  for (const auto& [keeps, option, hides, interval, red] :
       std::vector<Row>{{false, false, false, 100, true},
                        {false, false, true, 100, false},
                        {false, true, false, 80, true},
                        {true, false, false, 55, false}}) {
    Field field;
    Timers& timers = field.state.timers;
    timers.SetInterval(timers.iWait(0), 55);
    timers.Start(timers.ResetSpeed);
    field.state.settings.NoSpeedReset = keeps;
    field.state.settings.IncSpeed = option;
    field.state.settings.SpeedGain = 20;
    field.state.level.HideCollected = hides;
    ItemRec& first = field.Item(ItemKind::kRed, {300, 300});
    first.Present = false;
    field.Draws([](Rnd rnd) { return rnd.Below(5) == 2; });
    SpeedReset(field.state);
    EXPECT_EQ(timers.iWait(0).Interval, interval);
    EXPECT_EQ(first.Present, red);
    EXPECT_FALSE(timers.ResetSpeed.Enabled);
  }
}

TEST(DrawAppearances, AbsentItemsMoveEveryTimeAndComeBackByTheirRates) {
  struct Row {
    ItemKind kind;
    bool hides;
    double rate;
    int moves, returns;
  };
  for (const auto& [kind, hides, rate, moves, returns] :
       std::vector<Row>{{ItemKind::kBlue, false, 1, 1, 0},
                        {ItemKind::kBlack, true, 1, 0, 0},
                        {ItemKind::kPower, true, 1, 1, 1},
                        {ItemKind::kPower, true, 1e9, 1, 0},
                        {ItemKind::kYellow, false, 1, 0, 0}}) {
    Field field;
    field.state.level.HideCollected = hides;
    field.state.level.blueRate = rate;
    field.state.level.powerRate = rate;
    ItemRec& item = field.Item(kind, {-7, -7});
    item.Present = false;
    DrawAppearances(field.state);
    EXPECT_EQ(item.X != -7, moves == 1);
    EXPECT_EQ(item.Present, returns == 1);
  }
}

TEST(DrawAppearances, PresentItemsGoAsOftenAsTheirKindDoes) {
  struct Row {
    ItemKind kind;
    double odds;
  };
  constexpr int kDraws = 200000;
  for (const auto& [kind, odds] : std::vector<Row>{{ItemKind::kBlue, 40},
                                                   {ItemKind::kBlack, 500},
                                                   {ItemKind::kTnt, 800},
                                                   {ItemKind::kPower, 200}}) {
    Field field;
    ItemRec& item = field.Item(kind, {300, 300});
    int gone = 0;
    for (int draw = 0; draw < kDraws; ++draw) {
      item.Present = true;
      DrawAppearances(field.state);
      gone += item.Present ? 0 : 1;
    }
    EXPECT_NEAR(gone, kDraws / odds, 5 * std::sqrt(kDraws / odds)) << odds;
  }
}

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
