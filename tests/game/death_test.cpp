#include "game/death.h"

#include "field.h"
#include "game/death_messages.h"
#include "game/waiting.h"

namespace coilrun {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(DeathMessage, ByCauseDrawAndCount) {
  struct Row {
    DeathCause cause;
    bool own;
    int draw, deaths;
    std::string text;
  };
  for (const auto& [cause, own, draw, deaths, text] : std::vector<Row>{
           {DeathCause::kWall, true, 1, 10, "Ann hit a wall. bang!"},
           {DeathCause::kWall, true, 1, 11, "Ann dies the 11th time!"},
           {DeathCause::kWall, true, 2, 11, "Ann was in the wrong place"},
           {DeathCause::kWall, true, 3, 1, "Ann looses another frag!"},
           {DeathCause::kSnake, true, 1, 1, "Ann bite him/herself! - What a LOOSER!"},
           {DeathCause::kSnake, true, 3, 2, "Ann lost his 2 live"},
           {DeathCause::kSnake, false, 1, 9, "Ann didn't see Bot2!"},
           {DeathCause::kSnake, false, 2, 3, "Bot2 stopped Ann and gets another frag!"},
           {DeathCause::kSnake, false, 3, 4, "Ann hit Bot2 and dies the 4th time!"},
           {DeathCause::kEdge, true, 1, 1, "Ann didn't see the wall."},
           {DeathCause::kEdge, true, 2, 1, "A wall stopped Ann"},
           {DeathCause::kEdge, true, 3, 1, "Ann, tried to walk through a wall"}}) {
    Field field;
    field.Player().Deaths = deaths;
    const SnakeRec& other = field.Snake(own ? 1 : 2);
    EXPECT_EQ(DeathMessage(field.Player(), cause, other, draw), text);
  }
}

/// A player in the middle of a game.
SnakeRec& Busy(Field& field) {
  SnakeRec& player = field.Put(1, {300, 300});
  field.Body(1, {{280, 300}, {260, 300}});
  player.Grow = 4;
  player.Score = -40;
  player.YellowEaten = 5;
  player.TNT = 2;
  player.ImmortalSecs = 7;
  player.Tail.Dir = Dir::kFL;
  field.state.level.ElapsedSecs = 33;
  field.state.settings.SpeedGain = 9;
  field.state.shell.lvlTime = true;
  return player;
}

TEST(KillSnake, SinglePlayCostsALifeAndRestartsTheClock) {
  Field field;
  const SnakeRec& player = Busy(field);
  ItemRec& hidden = field.Item(ItemKind::kRed, {500, 400});
  hidden.Present = false;
  hidden.Collected = true;
  field.state.level.HideCollected = true;
  field.state.numSpawnPoints = 1;
  field.state.SpawnPoints(1) = {200, 200, true, "new"};
  field.host.storedInterval = 90;
  field.host.onYield = [&] {
    const ShellState& shell = field.state.shell;
    EXPECT_EQ(shell.lvlTime, field.host.yields == 1) << "the clock stands during the wait";
    EXPECT_EQ(shell.WaitingAfterDeath, field.host.yields == 2);
  };
  KillSnake(field.game, 1, DeathCause::kEdge);

  EXPECT_EQ(field.Has(1), "100,100  length 1+0 score 0 lives 2 frags 0 ate 50000 tnt 2 safe 0");
  EXPECT_EQ(player.Tail.Dir, Dir::kNone);
  EXPECT_EQ(player.Seg(2).X, -20);
  EXPECT_THAT(field.host.calls, ElementsAre("\\snd\\wall.wav 1", "load"));
  EXPECT_EQ(field.host.yields, 2) << "once instead of a message, once in the wait";
  const std::string edge(28, '*');
  const std::string side = "*" + std::string(26, ' ') + "*";
  EXPECT_THAT(field.host.screen,
              ElementsAre("215 Uh - You loose a live...", "230 -Press Enter-", "200 " + edge,
                          "215 " + side, "230 " + side, "245 " + side, "260 " + edge));
  EXPECT_THAT(field.Feed(), IsEmpty());
  EXPECT_EQ(field.state.level.ElapsedSecs, 0);
  EXPECT_EQ(field.state.settings.SpeedGain, 0);
  EXPECT_EQ(field.state.timers.iWait(0).Interval, 90) << "the stored speed, no level's";
  EXPECT_TRUE(hidden.Present && !hidden.Collected);
  EXPECT_EQ(field.state.SpawnPoints(1).State, "");
  EXPECT_FALSE(field.state.shell.WaitingAfterDeath || field.state.shell.WaitingForKey);
  EXPECT_EQ(field.state.CenterLines(0).Text, "");
}

TEST(KillSnake, AMatchTakesTheHarvestInsteadOfALife) {
  Field field;
  Busy(field);
  field.state.mode.GameMode = GameMode::kDeathmatch;
  field.Draws([](Rnd rnd) { return rnd.Below(3) == 1; });
  KillSnake(field.game, 1, DeathCause::kEdge);
  EXPECT_THAT(field.Feed(), ElementsAre("A wall stopped Ann"));
  EXPECT_EQ(field.Has(1), "100,100  length 1+0 score -40 lives 3 frags 0 ate 00000 tnt 0 safe 0");
  EXPECT_EQ(field.state.level.ElapsedSecs, 33);
}

TEST(KillSnake, AnAiSnakeDiesWithoutAScreen) {
  Field field;
  field.Put(2, {300, 300});
  KillSnake(field.game, 2, DeathCause::kWall);
  EXPECT_THAT(field.host.overlays, IsEmpty());
  EXPECT_THAT(field.host.calls, ElementsAre("\\snd\\wall.wav 2", "load"));
  EXPECT_EQ(field.Snake(2).Lives, 2);
}

TEST(GameOver, OverwritesOneEntryAndShiftsNone) {
  struct Row {
    bool cheated;
    int total;
    std::string notice;
    int place;
  };
  for (const auto& [cheated, total, notice, place] :
       std::vector<Row>{{false, 8500, "260 This is a new High Score!", 3},
                        {true, 8500, "260 This would be a new High Score! - But you cheated!", 0},
                        {false, 1000, "200 " + std::string(20, '*'), 0}}) {
    Field field;
    for (int i = 1; i <= kHiScores; ++i) field.state.HiScore(i) = {"Old", 11000.0 - 1000 * i};
    field.state.mode.Cheated = cheated;
    field.Put(2, {300, 300});
    SnakeRec& player = field.Put(1, {0, 0});
    player.Lives = 0;
    player.TotalScore = total;
    KillSnake(field.game, 1, DeathCause::kEdge);
    EXPECT_THAT(field.host.overlays, ElementsAre(WaitOverlay::kNone, WaitOverlay::kGameOver));
    EXPECT_EQ(field.host.screen.at(2), "245 Your Score: " + std::to_string(total));
    EXPECT_EQ(field.host.screen.at(3), notice);
    for (int i = 1; i <= kHiScores; ++i) {
      EXPECT_EQ(field.state.HiScore(i).Name, i == place ? "Ann" : "Old") << i;
      EXPECT_EQ(field.state.HiScore(i).Score, i == place ? total : 11000 - 1000 * i) << i;
    }
    EXPECT_EQ(field.host.calls.back(), place == 0 ? "load" : "save");
    EXPECT_EQ(field.state.menus.ScorePage, place == 0 ? 0 : 1);
    EXPECT_TRUE(field.state.shell.InMenu && field.state.shell.NoGameRunning);
    EXPECT_EQ(player.TotalScore, 0);
    EXPECT_EQ(player.Lives, 3);
    EXPECT_EQ(field.Snake(2).Dir, Dir::kNone);
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
      if (!abort) field.state.keys.LastKey = kEnterKey;
    };
    field.state.keys.LastKey = kEnterKey;
    WaitForKey(field.game, kEnterKey);
    EXPECT_EQ(field.host.overlays.size(), 3U) << "an earlier Enter does not count";
    EXPECT_FALSE(field.state.shell.WaitAborted);
    EXPECT_TRUE(field.state.shell.lvlTime);
  }
}

}  // namespace
}  // namespace coilrun
