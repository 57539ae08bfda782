#include "game/speed.h"

#include "field.h"

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
  ShellState& shell = field.state.shell;
  shell.lvlTime = true;
  for (bool ShellState::*const stops : {&ShellState::IsPause, &ShellState::InMenu}) {
    shell.*stops = true;
    TickSecond(field.state);
    EXPECT_EQ(field.state.level.ElapsedSecs, 0) << "the game stands";
    shell.*stops = false;
  }
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
  using Row = std::tuple<bool, bool, bool, int, bool>;
  const Row rows[] = {{false, false, false, 100, true},
                      {false, false, true, 100, false},
                      {false, true, false, 80, true},
                      {true, false, false, 55, false}};
  for (const auto& [keeps, option, hides, interval, red] : rows) {
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
    field.Rolls([](Rnd rnd) { return rnd.Below(5) == 2; });
    SpeedReset(field.state);
    EXPECT_EQ(timers.iWait(0).Interval, interval) << keeps << option << hides;
    EXPECT_EQ(first.Present, red) << keeps << option << hides;
    EXPECT_FALSE(timers.ResetSpeed.Enabled);
  }
}

}  // namespace
}  // namespace coilrun
