#include "game/death.h"

#include "field.h"
#include "game/death_messages.h"
#include "game/waiting.h"
#include "ports/scan_codes.h"

namespace coilrun {
namespace {

using testing::ElementsAre;

TEST(DeathMessage, ByCauseDrawAndCount) {
  using Row = std::tuple<DeathCause, int, int, int, std::string>;
  const Row rows[] = {{DeathCause::kWall, 1, 1, 10, "Ann hit a wall. bang!"},
                      {DeathCause::kWall, 1, 1, 11, "Ann dies the 11th time!"},
                      {DeathCause::kWall, 1, 2, 11, "Ann was in the wrong place"},
                      {DeathCause::kWall, 1, 3, 1, "Ann looses another frag!"},
                      {DeathCause::kSnake, 1, 1, 1, "Ann bite him/herself! - What a LOOSER!"},
                      {DeathCause::kSnake, 1, 3, 2, "Ann lost his 2 live"},
                      {DeathCause::kSnake, 2, 1, 9, "Ann didn't see Bot2!"},
                      {DeathCause::kSnake, 2, 2, 3, "Bot2 stopped Ann and gets another frag!"},
                      {DeathCause::kSnake, 2, 3, 4, "Ann hit Bot2 and dies the 4th time!"},
                      {DeathCause::kEdge, 1, 1, 1, "Ann didn't see the wall."},
                      {DeathCause::kEdge, 1, 2, 1, "A wall stopped Ann"},
                      {DeathCause::kEdge, 1, 3, 1, "Ann, tried to walk through a wall"}};
  for (const auto& [cause, killer, roll, deaths, text] : rows) {
    Field field;
    field.Player().Deaths = deaths;
    EXPECT_EQ(DeathMessage(field.Player(), cause, field.Snake(killer), roll), text);
  }
}

/// Kills a snake in the middle of a game and tells what that changed.
std::string Kill(Field& field, int number) {
  SnakeRec& snake = field.Put(number, {300, 300});
  field.Body(number, {{280, 300}, {260, 300}});
  snake.Grow = 4;
  snake.Score = -40;
  snake.YellowEaten = 5;
  snake.TNT = 2;
  snake.Immortal = true;
  snake.ImmortalSecs = 7;
  snake.Tail.Dir = Dir::kFL;
  field.state.level.ElapsedSecs = 33;
  field.state.settings.SpeedGain = 9;
  field.state.shell.lvlTime = true;
  field.host.storedInterval = 90;
  return field.After([number](Game& game) { KillSnake(game, number, DeathCause::kEdge); });
}

TEST(KillSnake, SinglePlayCostsALifeAndRestartsTheClock) {
  Field field;
  ItemRec& hidden = field.Item(ItemKind::kRed, {500, 400});
  hidden.Present = false;
  hidden.Collected = true;
  field.state.level.HideCollected = true;
  field.state.numSpawnPoints = 1;
  field.state.SpawnPoints(1) = {200, 200, true, Written<SpawnUse>{"new"}};
  field.host.onYield = [&] {
    const ShellState& shell = field.state.shell;
    EXPECT_EQ(shell.lvlTime, field.host.yields == 1) << "the clock stands during the wait";
    EXPECT_EQ(shell.WaitingAfterDeath, field.host.yields == 2);
  };
  EXPECT_EQ(Kill(field, 1),
            "1.At=100,100 1.Deaths=1 1.Dir=none 1.Grow=0 1.Immortal=0 1.ImmortalSecs=0 1.Length=1 "
            "1.Lives=2 1.NextDir=none 1.Score=0 1.Tail=none 1.Timer=90 ElapsedSecs=0 SpeedGain=0 "
            "[\\snd\\wall.wav 1] [load]");
  EXPECT_EQ(field.Player().Seg(2).X, -20);
  EXPECT_EQ(field.host.yields, 2) << "once instead of a message, once in the wait";
  const std::string edge(28, '*');
  const std::string side = "*" + std::string(26, ' ') + "*";
  EXPECT_THAT(field.host.screen,
              ElementsAre("215 Uh - You loose a live...", "230 -Press Enter-", "200 " + edge,
                          "215 " + side, "230 " + side, "245 " + side, "260 " + edge));
  EXPECT_TRUE(hidden.Present && !hidden.Collected);
  hidden.Present = false;
  hidden.Collected = true;
  field.state.level.HideCollected = false;
  field.host.onYield = nullptr;
  Kill(field, 1);
  EXPECT_FALSE(hidden.Present) << "only a level that hides items has some to give back";
  EXPECT_EQ(field.state.SpawnPoints(1).State.Text(), "");
  EXPECT_EQ(field.state.CenterLines(0).Text, "");
}

TEST(KillSnake, AMatchTakesTheItemCountsInsteadOfALife) {
  Field field;
  field.state.mode.GameMode = GameMode::kDeathmatch;
  field.Rolls([](Rnd rnd) { return rnd.Below(3) == 1; });
  EXPECT_EQ(Kill(field, 1),
            "1.At=100,100 1.Deaths=1 1.Dir=none 1.Grow=0 1.Immortal=0 1.ImmortalSecs=0 1.Length=1 "
            "1.NextDir=none 1.TNT=0 1.Tail=none 1.Timer=90 1.YellowEaten=0 SpeedGain=0 "
            "[\\snd\\wall.wav 1] [load] \"A wall stopped Ann\"");
}

TEST(KillSnake, AnAiSnakeDiesWithoutAScreen) {
  Field field;
  EXPECT_THAT(Kill(field, 2), testing::HasSubstr("2.Lives=2"));
  EXPECT_THAT(field.host.overlays, testing::IsEmpty());
}

TEST(GameOver, OverwritesOneEntryAndShiftsNone) {
  using Row = std::tuple<bool, int, int, std::string, std::string>;
  const std::string changes =
      "1.At=100,100 1.Deaths=1 1.Dir=none 1.Lives=3 1.NextDir=none 1.TotalScore=0 2.Dir=none "
      "2.NextDir=none "
      "InMenu=1 NoGameRunning=1 ";
  const Row rows[] = {
      {false, 8500, 3, "260 This is a new High Score!",
       "ScorePage=1 lvlTime=1 [\\snd\\wall.wav 1] [load] [save]"},
      {true, 8500, 0, "260 This would be a new High Score! - But you cheated!",
       "lvlTime=1 [\\snd\\wall.wav 1] [load]"},
      {false, 1000, 0, "200 " + std::string(20, '*'), "lvlTime=1 [\\snd\\wall.wav 1] [load]"}};
  for (const auto& [cheated, total, place, notice, told] : rows) {
    Field field;
    for (int i = 1; i <= kHiScores; ++i) field.state.HiScore(i) = {"Old", 11000.0 - 1000 * i};
    field.state.mode.Cheated = cheated;
    field.Put(2, {300, 300});
    SnakeRec& player = field.Put(1, {0, 0});
    player.Lives = 0;
    player.TotalScore = total;
    EXPECT_EQ(field.After([](Game& game) { KillSnake(game, 1, DeathCause::kEdge); }),
              changes + told);
    EXPECT_THAT(field.host.overlays, ElementsAre(WaitOverlay::kNone, WaitOverlay::kGameOver));
    EXPECT_EQ(field.host.screen.at(2), "245 Your Score: " + std::to_string(total));
    EXPECT_EQ(field.host.screen.at(3), notice);
    for (int i = 1; i <= kHiScores; ++i) {
      EXPECT_EQ(field.state.HiScore(i).Name, i == place ? "Ann" : "Old") << i;
      EXPECT_EQ(field.state.HiScore(i).Score, i == place ? total : 11000 - 1000 * i) << i;
    }
    EXPECT_EQ(field.state.overlay, WaitOverlay::kNone);
  }
}

TEST(WaitForKey, EndsOnItsKeyOrWhenAborted) {
  for (const bool abort : {false, true}) {
    Field field;
    field.host.pressesEnter = false;
    field.host.onYield = [&] {
      if (field.host.yields == 2) field.state.keys.LastKey = 57;
      if (field.host.yields < 3) return;
      field.state.shell.WaitAborted = abort;
      if (!abort) field.state.keys.LastKey = kKeyEnter;
    };
    field.state.keys.LastKey = kKeyEnter;
    EXPECT_EQ(field.After([](Game& game) { WaitForKey(game, kKeyEnter); }), "lvlTime=1");
    EXPECT_EQ(field.host.overlays.size(), 3U) << "an earlier Enter does not count";
  }
}

}  // namespace
}  // namespace coilrun
