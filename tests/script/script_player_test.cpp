#include "script/script_player.h"

#include <vector>

#include <gmock/gmock.h>

#include "stage.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(ScriptPlayer, LeavesTenMinutesAfterTheLastCommand) {
  for (const auto& [script, last] : {std::pair{"", 600'000}, {"1000 down 28", 601'000}}) {
    Stage stage(script);
    EXPECT_EQ(stage.YieldAt(last - 1), std::nullopt);
    EXPECT_EQ(stage.YieldAt(last), 2);
    EXPECT_THAT(stage.messages.str(), HasSubstr("ten minutes"));
  }
}

TEST(ScriptPlayer, LeavesWhenAMillionYieldsTakeNoTime) {
  Stage stage("");
  int yields = 1;
  while (!stage.YieldAt(5)) ++yields;
  EXPECT_EQ(yields, 1'000'000);
  EXPECT_THAT(stage.messages.str(), HasSubstr("no time"));
}

TEST(ScriptPlayer, HoldsKeysAsLongAsTheScriptSays) {
  struct {
    const char* script;
    std::size_t code;
    std::vector<std::pair<int, bool>> polls;  ///< when, and whether the key is held then
  } const cases[] = {
      {"", 28, {{0, false}}},
      // A tap lasts 30 milliseconds, and is seen even if it falls between two polls.
      {"10 tap 28", 28, {{9, false}, {10, true}, {39, true}, {40, false}}},
      {"10 tap 28", 28, {{9, false}, {100, true}, {100, false}}},
      {"0 type aa", 30, {{0, true}, {29, true}, {30, false}, {59, false}, {60, true}, {90, false}}},
      // A poll takes one change per key.
      {"0 down 30\n0 up 30\n0 down 30\n0 down 30",
       30,
       {{0, true}, {0, false}, {0, true}, {0, true}}},
      {"0 down 30\n0 down 28\n0 up 30", 28, {{0, true}, {0, true}}},
  };
  for (const auto& each : cases) {
    Stage stage(each.script);
    for (const auto& [at, held] : each.polls) {
      stage.YieldAt(at);
      stage.player.ReadKeys(stage.keys);
      EXPECT_EQ(stage.keys.at(each.code) != 0, held) << each.script << " at " << at;
    }
  }
}

TEST(ScriptPlayer, TellsTheWindowInFileOrderOfWhatIsDue) {
  Stage stage("1 focus lost\n2 focus gained\n2 close\n3 focus lost");
  stage.YieldAt(2);
  EXPECT_THAT(stage.window.events,
              ElementsAre(WindowEvent::kFocusLost, WindowEvent::kFocusGained, WindowEvent::kClose));
  stage.YieldAt(2);
  EXPECT_EQ(stage.window.events.size(), 3U);
}

TEST(ScriptPlayer, TellsOfThePointerOnceInFileOrder) {
  Stage stage("1 point 3 4\n1 click left\n2 wheel down");
  stage.YieldAt(1);
  const auto moved = stage.player.NextPointerEvent();
  ASSERT_TRUE(moved);
  EXPECT_EQ(moved->act, PointerAct::kMove);
  EXPECT_EQ(moved->x, 3);
  EXPECT_EQ(moved->y, 4);
  EXPECT_EQ(stage.player.NextPointerEvent()->act, PointerAct::kLeftButton);
  EXPECT_FALSE(stage.player.NextPointerEvent());
  stage.YieldAt(2);
  EXPECT_EQ(stage.player.NextPointerEvent()->act, PointerAct::kWheelDown);
}

TEST(ScriptPlayer, EndLeavesBeforeLaterCommands) {
  Stage stage("1 shot a.png\n1 end\n1 shot b.png");
  EXPECT_EQ(stage.YieldAt(1), 0);
  EXPECT_THAT(stage.shots.files, ElementsAre("a.png"));
  EXPECT_THAT(stage.messages.str(), IsEmpty());
}

TEST(ScriptPlayer, FailuresNameTheLineAndLeaveWithTwo) {
  const std::pair<const char*, const char*> cases[] = {
      {"1 shot there.png", "test.txt:1: there.png cannot be written\n"},
      {"\n1 set Snakes.1.TNT two", "test.txt:2: Snakes.1.TNT: \"two\" is not a whole number\n"},
      {"1 state", "test.txt:1: the trace cannot be written\n"},
  };
  for (const auto& [script, message] : cases) {
    Stage stage(script);
    stage.shots.writable = false;
    stage.trace.setstate(std::ios::badbit);
    EXPECT_EQ(stage.YieldAt(1), 2) << script;
    EXPECT_EQ(stage.messages.str(), message);
  }
}

TEST(ScriptPlayer, SetsFieldsBeforeALaterStateOfTheSameTime) {
  Stage stage("1 set Snakes.1.TNT 2\n1 state");
  stage.state.output.sounds = {{".\\snd\\a.wav", 1}};
  stage.music.position = 65;
  stage.music.duration = 30;
  stage.YieldAt(1);
  EXPECT_EQ(stage.state.Snakes(1).TNT, 2);
  EXPECT_THAT(stage.trace.str(), HasSubstr("\"TNT\":2,"));
  EXPECT_THAT(stage.trace.str(), HasSubstr("\"Position\":5}"));
  EXPECT_TRUE(stage.trace.str().ends_with("}\n"));
  EXPECT_THAT(stage.state.output.sounds, IsEmpty());
}

TEST(ScriptPlayer, AnswersBoxesInOrderWhenDue) {
  Stage stage("10 answer yes\n10 answer yes\n10 answer no\n10 answer yes\n20 answer yes");
  const auto ask = [&](BoxButtons buttons) {
    return stage.player.Show("Titl\xE4", "A\r\nB", buttons);
  };
  stage.clock.now = 9'999;
  EXPECT_EQ(ask(BoxButtons::kYesNo), BoxAnswer::kNo);
  stage.clock.now = 10'000;
  EXPECT_EQ(ask(BoxButtons::kYesNo), BoxAnswer::kYes);
  EXPECT_EQ(ask(BoxButtons::kOk), BoxAnswer::kOk);
  EXPECT_EQ(ask(BoxButtons::kYesNo), BoxAnswer::kNo);
  EXPECT_EQ(ask(BoxButtons::kYesNo), BoxAnswer::kYes);
  EXPECT_EQ(ask(BoxButtons::kYesNo), BoxAnswer::kNo);
  EXPECT_THAT(stage.messages.str(), HasSubstr("box: Titl\xC3\xA4: A\\nB\n"));
}

}  // namespace
}  // namespace coilrun
