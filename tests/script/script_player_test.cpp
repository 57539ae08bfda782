#include "script/script_player.h"

#include <vector>

#include <gmock/gmock.h>

#include "stage.h"

namespace coilrun {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr int kEnter = 28;
constexpr int kA = 30;

TEST(ScriptPlayer, AnEmptyScriptHoldsNoKeysAndLeavesAfterTenMinutes) {
  Stage stage("");
  EXPECT_EQ(stage.YieldAt(0), std::nullopt);
  EXPECT_FALSE(stage.Held(kEnter));
  EXPECT_EQ(stage.YieldAt(599'999), std::nullopt);
  EXPECT_EQ(stage.YieldAt(600'000), 2);
  EXPECT_THAT(stage.messages.str(), HasSubstr("ten minutes"));
}

TEST(ScriptPlayer, TheTenMinutesBeginWithTheLastCommand) {
  Stage stage("1000 down 28");
  EXPECT_EQ(stage.YieldAt(600'999), std::nullopt);
  EXPECT_EQ(stage.YieldAt(601'000), 2);
}

TEST(ScriptPlayer, LeavesWhenAMillionYieldsTakeNoTime) {
  Stage stage("");
  int yields = 1;
  while (!stage.YieldAt(5)) ++yields;
  EXPECT_EQ(yields, 1'000'000);
  EXPECT_THAT(stage.messages.str(), HasSubstr("no time"));
}

TEST(ScriptPlayer, AKeyTappedBetweenTwoPollsIsSeenDownAndThenUp) {
  Stage stage("10 tap 28");
  stage.YieldAt(9);
  EXPECT_FALSE(stage.Held(kEnter));
  stage.YieldAt(100);
  EXPECT_TRUE(stage.Held(kEnter));
  EXPECT_FALSE(stage.Held(kEnter));
}

TEST(ScriptPlayer, ATapLastsThirtyMilliseconds) {
  Stage stage("10 tap 28");
  stage.YieldAt(10);
  EXPECT_TRUE(stage.Held(kEnter));
  stage.YieldAt(39);
  EXPECT_TRUE(stage.Held(kEnter));
  stage.YieldAt(40);
  EXPECT_FALSE(stage.Held(kEnter));
}

TEST(ScriptPlayer, TypesOneKeyEverySixtyMilliseconds) {
  Stage stage("0 type aa");
  for (const auto& [at, held] : std::vector<std::pair<int, bool>>{{0, true},
                                                                  {29, true},
                                                                  {30, false},
                                                                  {59, false},
                                                                  {60, true},
                                                                  {90, false},
                                                                  {120, false}}) {
    stage.YieldAt(at);
    EXPECT_EQ(stage.Held(kA), held) << at;
  }
}

TEST(ScriptPlayer, OnePollTakesOneChangeOfEachKey) {
  Stage stage("0 down 30\n0 down 28\n0 up 30\n0 down 30\n0 down 30\n");
  stage.YieldAt(0);
  const std::vector<bool> expectedA = {true, false, true, true};
  for (const bool held : expectedA) {
    EXPECT_EQ(stage.Held(kA), held);
    EXPECT_EQ(stage.keys.at(kEnter), 1);
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

TEST(ScriptPlayer, EndLeavesBeforeLaterCommands) {
  Stage stage("1 shot a.png\n1 end\n1 shot b.png");
  EXPECT_EQ(stage.YieldAt(1), 0);
  EXPECT_THAT(stage.shots.files, ElementsAre("a.png"));
  EXPECT_THAT(stage.messages.str(), IsEmpty());
}

TEST(ScriptPlayer, FailuresNameTheLineAndLeaveWithTwo) {
  Stage badShot("1 shot there.png");
  badShot.shots.writable = false;
  EXPECT_EQ(badShot.YieldAt(1), 2);
  EXPECT_EQ(badShot.messages.str(), "test.txt:1: there.png cannot be written\n");

  Stage badSet("\n1 set Snakes.1.TNT two");
  EXPECT_EQ(badSet.YieldAt(1), 2);
  EXPECT_EQ(badSet.messages.str(), "test.txt:2: Snakes.1.TNT: \"two\" is no whole number\n");

  Stage badTrace("1 state");
  badTrace.trace.setstate(std::ios::badbit);
  EXPECT_EQ(badTrace.YieldAt(1), 2);
  EXPECT_EQ(badTrace.messages.str(), "test.txt:1: the trace cannot be written\n");
}

TEST(ScriptPlayer, SetsFieldsBeforeALaterStateOfTheSameTime) {
  Stage stage("1 set Snakes.1.TNT 2\n1 state");
  stage.state.witness.sounds = {{".\\snd\\a.wav", 1}};
  stage.music.position = 65;
  stage.music.duration = 30;
  stage.YieldAt(1);
  EXPECT_EQ(stage.state.Snakes(1).TNT, 2);
  EXPECT_THAT(stage.trace.str(), HasSubstr("\"TNT\":2,"));
  EXPECT_THAT(stage.trace.str(), HasSubstr("\"Position\":5}"));
  EXPECT_TRUE(stage.trace.str().ends_with("}\n"));
  EXPECT_THAT(stage.state.witness.sounds, IsEmpty());
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
