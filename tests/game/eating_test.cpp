#include "game/eating.h"

#include "field.h"

namespace coilrun {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Point kHead{200, 200};
const std::string kCollect = "\\snd\\collect.wav";

TEST(EatItems, EveryKindHasItsReach) {
  struct Row {
    ItemKind kind;
    int minX, maxX, minY, maxY;
  };
  for (const auto& [kind, minX, maxX, minY, maxY] :
       std::vector<Row>{{ItemKind::kYellow, -16, 16, -16, 16},
                        {ItemKind::kRed, -16, 12, -12, 12},
                        {ItemKind::kBlue, -16, 16, -16, 16},
                        {ItemKind::kBlack, -16, 12, -16, 12},
                        {ItemKind::kTnt, -16, 12, -16, 12},
                        {ItemKind::kPower, -16, 12, -16, 12}}) {
    const auto eaten = [&, k = kind](int dx, int dy) {
      Field field;
      field.Put(1, kHead);
      field.Item(k, {kHead.x - dx, kHead.y - dy});
      EatItems(field.game, kPlayer);
      return !field.host.calls.empty();
    };
    EXPECT_TRUE(eaten(minX, 0) && eaten(maxX, 0) && eaten(0, minY) && eaten(0, maxY));
    EXPECT_FALSE(eaten(minX - 1, 0) || eaten(maxX + 1, 0)) << static_cast<int>(kind);
    EXPECT_FALSE(eaten(0, minY - 1) || eaten(0, maxY + 1)) << static_cast<int>(kind);
  }
}

TEST(EatItems, YellowComesBackElsewhereAndBringsTheFirstRed) {
  Field field;
  field.Put(2, kHead);
  ItemRec& yellow = field.Item(ItemKind::kYellow, kHead);
  ItemRec& red = field.Item(ItemKind::kRed, {500, 400});
  yellow.SpawnPoint = 1;
  field.state.numSpawnPoints = 1;
  field.state.SpawnPoints(1) = {200, 200, true, "1"};
  red.Present = false;
  EatItems(field.game, 2);
  EXPECT_TRUE(yellow.Present && red.Present);
  EXPECT_NE(yellow.At(), kHead);
  EXPECT_EQ(field.state.SpawnPoints(1).State, "") << "released, and passed over once";
  EXPECT_EQ(field.Has(2),
            "200,200 Right length 2+0 score 10 lives 3 frags 0 ate 10000 tnt 0 safe 0");
  EXPECT_THAT(field.host.calls, ElementsAre(kCollect + " 2"));

  red.Present = false;
  yellow = {200, 200, true, -1, false};
  field.state.timers.Start(field.state.timers.ResetSpeed);
  EatItems(field.game, 2);
  EXPECT_FALSE(red.Present) << "a speed change is on";
}

TEST(EatItems, HiddenItemsStayWhereTheyWereEaten) {
  for (const ItemKind kind :
       {ItemKind::kYellow, ItemKind::kRed, ItemKind::kBlue, ItemKind::kBlack}) {
    Field field;
    field.Put(1, kHead);
    field.state.level.HideCollected = true;
    const ItemRec& item = field.Item(kind, kHead);
    EatItems(field.game, kPlayer);
    EXPECT_TRUE(!item.Present && item.Collected && item.At() == kHead);
  }
}

TEST(EatItems, RedSpeedsUpByThePeriodOfTheTimer) {
  struct Row {
    int timer, base, cut;
    bool keeps;
    int interval;
    std::vector<std::string> feed;
  };
  for (const auto& [timer, base, cut, keeps, interval, feed] :
       std::vector<Row>{{100, 100, 20, false, 80, {"You are now 20% faster for 7 seconds"}},
                        {100, 100, 20, true, 80, {"You are now 20% faster"}},
                        {100, 100, 10, false, 90, {}},
                        {200, 100, 10, false, 90, {"You are now 55% faster for 7 seconds"}},
                        {0, 100, 10, false, 90, {}},
                        {35, 35, 5, false, 30, {"You are now 15% faster for 7 seconds"}},
                        {35, 35, 29, false, 30, {"You are now 15% faster for 7 seconds"}}}) {
    Field field;
    field.Put(1, kHead).BaseInterval = base;
    field.Player().Interval = 5;
    field.state.level.HideCollected = true;
    field.state.settings.NoSpeedReset = keeps;
    Timers& timers = field.state.timers;
    timers.SetInterval(timers.iWait(0), timer);
    field.Item(ItemKind::kRed, kHead);
    field.Draws([wanted = cut](Rnd rnd) { return rnd.Below(30) == wanted && rnd.Below(6) == 3; });
    EatItems(field.game, kPlayer);
    EXPECT_EQ(field.Player().Interval, interval);
    EXPECT_EQ(timers.iWait(0).Interval, interval);
    EXPECT_EQ(timers.ResetSpeed.Interval, 7000);
    EXPECT_TRUE(timers.ResetSpeed.Enabled);
    EXPECT_EQ(field.state.settings.PrevInterval, timer);
    EXPECT_EQ(field.Feed(), feed);
    EXPECT_EQ(field.Has(1),
              "200,200 Right length 2+0 score 30 lives 3 frags 0 ate 01000 tnt 0 safe 0");
  }
}

TEST(EatItems, RedOnlyGivesPointsWithTheSpeedOption) {
  Field field;
  field.Put(2, kHead);
  field.Put(1, kHead);
  field.state.settings.IncSpeed = true;
  field.state.level.HideCollected = true;
  ItemRec& red = field.Item(ItemKind::kRed, kHead);
  EatItems(field.game, 2);
  EXPECT_THAT(field.Feed(), IsEmpty());
  EXPECT_THAT(field.host.calls, IsEmpty()) << "red is silent for others";
  red.Present = true;
  EatItems(field.game, kPlayer);
  EXPECT_THAT(field.Feed(), ElementsAre("You got 30 points."));
  EXPECT_FALSE(field.state.timers.ResetSpeed.Enabled);
}

TEST(EatItems, BlackSlowsDownByTheFieldOrCostsPoints) {
  const auto eat = [](Field& field, const std::function<bool(Rnd)>& draws) {
    field.Put(1, kHead);
    field.state.level.HideCollected = true;
    field.Item(ItemKind::kBlack, kHead);
    field.Draws(draws);
    EatItems(field.game, kPlayer);
  };
  Field slowed;
  slowed.state.timers.SetInterval(slowed.state.timers.iWait(0), 10);
  eat(slowed, [](Rnd r) { return r.Below(2) == 1 && r.Below(150) == 50 && r.Below(6) == 0; });
  EXPECT_THAT(slowed.Feed(), ElementsAre("You are now 50% slower", "for 4 seconds"));
  EXPECT_EQ(slowed.state.timers.iWait(0).Interval, 150);
  EXPECT_EQ(slowed.Player().Score, 0);

  Field robbed;
  eat(robbed, [](Rnd r) { return r.Below(2) == 0 && r.Below(50) == 49; });
  EXPECT_THAT(robbed.Feed(), ElementsAre("You lost 59 points!"));
  EXPECT_EQ(robbed.Has(1),
            "200,200 Right length 1+0 score -59 lives 3 frags 0 ate 00010 tnt 0 safe 0");
}

TEST(EatItems, TheTenthBlueRewardsByMode) {
  struct Row {
    GameMode mode;
    int eaten, lives, frags;
    std::vector<std::string> feed, sounds;
  };
  const std::string live = "\\snd\\live.wav 1";
  for (const auto& [mode, eaten, lives, frags, feed, sounds] : std::vector<Row>{
           {GameMode::kSingle, 9, 4, 0, {"You receive a new live!"}, {live, live}},
           {GameMode::kDeathmatch, 19, 3, 1, {"Ann got another frag! (10xBlue)"}, {live}},
           {GameMode::kSingle, 10, 3, 0, {}, {}}}) {
    Field field;
    field.state.mode.GameMode = mode;
    field.Put(1, kHead).BlueEaten = eaten;
    const ItemRec& blue = field.Item(ItemKind::kBlue, kHead);
    EatItems(field.game, kPlayer);
    EXPECT_FALSE(blue.Present);
    EXPECT_EQ(field.Player().Lives, lives);
    EXPECT_EQ(field.Player().Frags, frags);
    EXPECT_EQ(field.Player().Grow, 1);
    EXPECT_EQ(field.Feed(), feed);
    auto calls = sounds;
    calls.insert(calls.begin(), kCollect + " 1");
    EXPECT_EQ(field.host.calls, calls);
  }
}

TEST(EatItems, TntAndPowerAreMovedAndHidden) {
  Field field;
  field.Put(1, kHead).ImmortalSecs = 3;
  const ItemRec& tnt = field.Item(ItemKind::kTnt, kHead);
  const ItemRec& power = field.Item(ItemKind::kPower, kHead);
  EatItems(field.game, kPlayer);
  EXPECT_FALSE(tnt.Present || power.Present);
  EXPECT_NE(tnt.At(), kHead);
  EXPECT_NE(power.At(), kHead);
  EXPECT_EQ(field.Has(1),
            "200,200 Right length 1+0 score -100 lives 3 frags 0 ate 00001 tnt 1 safe 23");
  EXPECT_TRUE(field.Player().Immortal);
  EXPECT_THAT(field.Feed(), ElementsAre("You got TNT, now you can blow walls!",
                                        "Ann has Atomic Power and is immortal for 23 seconds!"));
}

TEST(EatItems, PowerStaysInMatchesAndForGods) {
  for (const bool god : {false, true}) {
    Field field;
    field.state.mode.GodMode = god;
    if (!god) field.state.mode.GameMode = GameMode::kDeathmatch;
    field.Put(1, kHead);
    const ItemRec& power = field.Item(ItemKind::kPower, kHead);
    EatItems(field.game, kPlayer);
    EXPECT_TRUE(power.Present);
    EXPECT_EQ(field.Player().Score, 0);
  }
}

TEST(EatItems, WhatFindsNoPlaceIsGone) {
  Field field;
  field.Put(1, kHead);
  for (int slot = 0; slot < kMaxWalls; ++slot) {
    field.Walls({{20 + 20 * (slot % 31), 20 + 20 * (slot / 31)}});
  }
  const ItemRec& yellow = field.Item(ItemKind::kYellow, kHead);
  EatItems(field.game, kPlayer);
  EXPECT_FALSE(yellow.Present);
  EXPECT_EQ(field.Player().YellowEaten, 1);
}

}  // namespace
}  // namespace coilrun
