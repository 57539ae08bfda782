#include "game/eating.h"

#include "field.h"

namespace coilrun {
namespace {

constexpr Point kHead{200, 200};

TEST(EatItems, EveryKindHasItsReach) {
  using Row = std::tuple<ItemKind, int, int, int, int>;
  const Row rows[] = {{ItemKind::kYellow, -16, 16, -16, 16}, {ItemKind::kRed, -16, 12, -12, 12},
                      {ItemKind::kBlue, -16, 16, -16, 16},   {ItemKind::kBlack, -16, 12, -16, 12},
                      {ItemKind::kTnt, -16, 12, -16, 12},    {ItemKind::kPower, -16, 12, -16, 12}};
  for (const auto& [kind, minX, maxX, minY, maxY] : rows) {
    const auto eaten = [&, k = kind](int dx, int dy) {
      Field field;
      field.Put(1, kHead);
      field.Item(k, {kHead.x - dx, kHead.y - dy});
      EatItems(field.game, kPlayer);
      return !field.host.calls.empty();
    };
    EXPECT_TRUE(eaten(minX, 0) && eaten(maxX, 0)) << static_cast<int>(kind);
    EXPECT_TRUE(eaten(0, minY) && eaten(0, maxY)) << static_cast<int>(kind);
    EXPECT_FALSE(eaten(minX - 1, 0) || eaten(maxX + 1, 0)) << static_cast<int>(kind);
    EXPECT_FALSE(eaten(0, minY - 1) || eaten(0, maxY + 1)) << static_cast<int>(kind);
  }
}

/// Lets a snake eat an item where it stands and tells what came of that, the item's fate last.
std::string Eat(Field& field, ItemKind kind, int snake = kPlayer) {
  field.Put(snake, kHead);
  const ItemRec& item = field.Item(kind, kHead);
  const std::string told = field.After([snake](Game& game) { EatItems(game, snake); });
  return told + (item.Present ? " shown" : " hidden") +
         (item.At() == kHead ? " here" : " elsewhere") + (item.Collected ? " collected" : "");
}

TEST(EatItems, EveryKindHasItsEffect) {
  constexpr auto kPlain = [](Field&) {};
  constexpr auto kSpeedOption = [](Field& field) { field.state.settings.IncSpeed = true; };
  constexpr auto kMatch = [](Field& field) {
    field.state.mode.GameMode = GameMode::kDeathmatch;
    field.Player().BlueEaten = 19;
  };
  constexpr auto kSlow = [](Field& field) {
    field.state.timers.SetInterval(field.state.timers.iWait(0), 10);
    field.state.level.HideCollected = true;
    field.Rolls([](Rnd r) { return r.Below(2) == 1 && r.Below(150) == 50 && r.Below(6) == 0; });
  };
  constexpr auto kRob = [](Field& field) {
    field.state.level.HideCollected = true;
    field.Rolls([](Rnd r) { return r.Below(2) == 0 && r.Below(50) == 49; });
  };
  using Row = std::tuple<ItemKind, int, void (*)(Field&), std::string>;
  using enum ItemKind;
  const std::string collect = "[\\snd\\collect.wav 1] ";
  const std::string live = "[\\snd\\live.wav 1] ";
  const Row rows[] = {
      {kYellow, 2, kPlain,
       "2.Length=2 2.Score=10 2.YellowEaten=1 [\\snd\\collect.wav 2] shown elsewhere"},
      {kRed, 1, kSpeedOption,
       "1.Length=2 1.RedEaten=1 1.Score=30 PrevInterval=100 " + collect +
           "\"You got 30 points.\" shown elsewhere"},
      {kRed, 2, kSpeedOption,
       "2.Length=2 2.RedEaten=1 2.Score=30 PrevInterval=100 shown elsewhere"},
      {kBlack, 1, kSlow,
       "1.BlackEaten=1 1.Interval=150 1.Timer=150 PrevInterval=100 ResetSpeed=4000 " + collect +
           "\"You are now 50% slower\" \"for 4 seconds\" hidden here collected"},
      {kBlack, 1, kRob,
       "1.BlackEaten=1 1.Score=-59 " + collect + "\"You lost 59 points!\" hidden here collected"},
      {kBlue, 1, [](Field& field) { field.Player().BlueEaten = 10; },
       "1.BlueEaten=11 1.Grow=1 1.Score=60 " + collect + "hidden elsewhere"},
      {kBlue, 1, [](Field& field) { field.Player().BlueEaten = 9; },
       "1.BlueEaten=10 1.Grow=1 1.Lives=4 1.Score=60 " + collect + live + live +
           "\"You receive a new live!\" hidden elsewhere"},
      {kBlue, 1, kMatch,
       "1.BlueEaten=20 1.Frags=1 1.Grow=1 1.Score=60 " + collect + live +
           "\"Ann got another frag! (10xBlue)\" hidden elsewhere"},
      {kTnt, 1, kPlain,
       "1.TNT=1 " + collect + "\"You got TNT, now you can blow walls!\" hidden elsewhere"},
      {kPower, 1, [](Field& field) { field.Player().ImmortalSecs = 3; },
       "1.Immortal=1 1.ImmortalSecs=23 1.PowerEaten=1 1.Score=-100 " + collect +
           "\"Ann has Atomic Power and is immortal for 23 seconds!\" hidden elsewhere"},
      {kPower, 1, kMatch, " shown here"},
      {kPower, 1, [](Field& field) { field.state.mode.GodMode = true; }, " shown here"}};
  for (const auto& [kind, eater, set, told] : rows) {
    Field field;
    set(field);
    EXPECT_EQ(Eat(field, kind, eater), told) << (field.state.mode.GodMode ? "a god" : "");
  }
}

TEST(EatItems, YellowFreesItsSpawnPointAndBringsTheFirstRed) {
  for (const bool speedChanged : {false, true}) {
    Field field;
    field.Put(1, kHead);
    field.Item(ItemKind::kYellow, kHead).SpawnPoint = 1;
    ItemRec& red = field.Item(ItemKind::kRed, {500, 400});
    red.Present = false;
    field.state.numSpawnPoints = 1;
    field.state.SpawnPoints(1) = {200, 200, true, SpawnUse::TakenBy(1)};
    field.state.timers.ResetSpeed.Enabled = speedChanged;
    EatItems(field.game, kPlayer);
    EXPECT_EQ(red.Present, !speedChanged);
    EXPECT_EQ(field.state.SpawnPoints(1).State.Text(), "") << "released, and passed over once";
    EXPECT_NE(field.state.Items(ItemKind::kYellow)(1).At(), kHead);
  }
}

TEST(EatItems, RedSpeedsUpByThePeriodOfTheTimer) {
  using Row = std::tuple<int, int, int, bool, int, std::string>;
  const Row rows[] = {{100, 100, 20, false, 80, "\"You are now 20% faster for 7 seconds\" "},
                      {100, 100, 20, true, 80, "\"You are now 20% faster\" "},
                      {100, 100, 10, false, 90, ""},
                      {200, 100, 10, false, 90, "\"You are now 55% faster for 7 seconds\" "},
                      {0, 100, 10, false, 90, ""},
                      {35, 35, 29, false, 30, "\"You are now 15% faster for 7 seconds\" "}};
  for (const auto& [timer, base, cut, keeps, interval, feed] : rows) {
    Field field;
    field.Player().BaseInterval = base;
    field.Player().Interval = 5;
    field.state.level.HideCollected = true;
    field.state.settings.NoSpeedReset = keeps;
    field.state.settings.PrevInterval = -1;
    field.state.timers.SetInterval(field.state.timers.iWait(0), timer);
    field.Rolls([wanted = cut](Rnd rnd) { return rnd.Below(30) == wanted && rnd.Below(6) == 3; });
    const std::string period = std::to_string(interval);
    EXPECT_EQ(Eat(field, ItemKind::kRed),
              "1.Interval=" + period + " 1.Length=2 1.RedEaten=1 1.Score=30 1.Timer=" + period +
                  " PrevInterval=" + std::to_string(timer) +
                  " ResetSpeed=7000 [\\snd\\collect.wav 1] " + feed + "hidden here collected");
  }
}

TEST(EatItems, WhatFindsNoPlaceIsGone) {
  Field field;
  for (int slot = 0; slot < kMaxWalls; ++slot) {
    field.Walls({{20 + 20 * (slot % 31), 20 + 20 * (slot / 31)}});
  }
  EXPECT_EQ(Eat(field, ItemKind::kYellow),
            "1.Length=2 1.Score=10 1.YellowEaten=1 [\\snd\\collect.wav 1] hidden elsewhere");
}

}  // namespace
}  // namespace coilrun
