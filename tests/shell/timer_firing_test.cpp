#include "shell/timer_firing.h"

#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace coilrun {
namespace {

using testing::ElementsAre;

class Recorder final : public TimerHandlers {
 public:
  void OnSecond() override { Note("second"); }
  void OnKeyboard() override { Note("keys"); }
  void OnSpeedReset() override { Note("reset"); }

  std::vector<std::string> calls;
  std::function<void()> onCall = [] {};

 private:
  void Note(const char* what) {
    calls.emplace_back(what);
    onCall();
  }
};

struct Clockwork {
  State state;
  Recorder recorder;

  void YieldAt(int milliseconds) {
    state.timers.now = std::int64_t{milliseconds} * 1000;
    FireDueTimers(state, recorder);
  }
};

TEST(Timers, PeriodicTimersDropWholeIntervalsThatWereMissed) {
  Clockwork clock;
  clock.YieldAt(999);
  EXPECT_TRUE(clock.recorder.calls.empty());
  clock.YieldAt(3700);
  clock.YieldAt(3999);
  EXPECT_THAT(clock.recorder.calls, ElementsAre("second"));
  clock.YieldAt(4000);
  EXPECT_THAT(clock.recorder.calls, ElementsAre("second", "second"));
}

TEST(Timers, FireInOrderAndWaitWithWhatAHandlerSwitchesOn) {
  Clockwork clock;
  Timers& timers = clock.state.timers;
  timers.Start(timers.keybrd);
  timers.ResetSpeed.Interval = 0;
  clock.recorder.onCall = [&timers] { timers.Start(timers.ResetSpeed); };
  clock.YieldAt(1000);
  EXPECT_THAT(clock.recorder.calls, ElementsAre("second", "keys"));
  clock.recorder.onCall = [] {};
  clock.YieldAt(1000);
  EXPECT_THAT(clock.recorder.calls, ElementsAre("second", "keys", "reset"));
  EXPECT_FALSE(timers.ResetSpeed.Enabled);
}

TEST(Timers, WhatAHandlerSwitchesOffOrPutsOffDoesNotFire) {
  for (const bool off : {true, false}) {
    Clockwork clock;
    Timers& timers = clock.state.timers;
    timers.ResetSpeed = {500, true};
    clock.recorder.onCall = [&] {
      if (off) Timers::Stop(timers.ResetSpeed);
      if (!off) timers.SetInterval(timers.ResetSpeed, 500);
    };
    clock.YieldAt(1000);
    EXPECT_THAT(clock.recorder.calls, ElementsAre("second")) << off;
  }
}

TEST(Timers, EvenStepsKeepTheirPaceOnADisplayThatDoesNotDivideIt) {
  for (const int frame : {13'333, 6'944}) {
    Clockwork clock;
    Timers& timers = clock.state.timers;
    timers.SetInterval(timers.iWait(0), 100);
    timers.Start(timers.iWait(0));
    timers.frameLength = frame;
    int steps = 0;
    for (timers.now = frame; timers.now <= 10'000'000 + frame; timers.now += frame) {
      FireDueTimers(clock.state, clock.recorder);
      if (timers.iWait(0).Enabled) continue;
      ++steps;
      timers.StartEvenly(timers.iWait(0));
    }
    EXPECT_EQ(steps, 100) << "ten seconds in frames of " << frame << " microseconds";
  }
}

TEST(Timers, ATimerThatFiredLongAgoCountsFromNow) {
  Clockwork clock;
  Timers& timers = clock.state.timers;
  timers.SetInterval(timers.iWait(3), 100);
  timers.Start(timers.iWait(3));
  clock.YieldAt(120);
  timers.now = 9'000'000;
  timers.frameLength = 16667;
  timers.StartEvenly(timers.iWait(3));
  EXPECT_EQ(timers.iWait(3).Due(), 9'100'000);
}

TEST(Timers, AnimationsCycleThrough45FramesAnd5Phases) {
  Clockwork clock;
  for (int tick = 1; tick <= 45; ++tick) {
    const int frame = clock.state.timers.AnimFrame;
    EXPECT_EQ(frame, tick);
    clock.YieldAt(66 * tick);
  }
  EXPECT_EQ(clock.state.timers.AnimFrame, 1);
  EXPECT_EQ(clock.state.timers.AnimPhase, 0);
}

}  // namespace
}  // namespace coilrun
