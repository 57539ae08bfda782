#include "shell/settings.h"

#include <gtest/gtest.h>

#include "shell/memory_settings.h"

namespace coilrun {
namespace {

TEST(LoadSettings, AFreshStoreGivesTheDefaults) {
  State state;
  MemorySettings store;
  LoadSettings(state, store);
  EXPECT_EQ(state.Snakes(1).Name, "Unknown");
  EXPECT_EQ(state.Snakes(1).Model, 1);
  EXPECT_EQ(state.Snakes(16).BaseInterval, 100);
  EXPECT_EQ(state.settings.MusicVolume, 30);
  EXPECT_TRUE(state.shell.ShowFPS);
  EXPECT_EQ(state.HiScore(1).Score, 10000);
  EXPECT_EQ(state.HiScore(10).Score, 1000);
  EXPECT_EQ(state.HiScore(10).Name, "Unknown");
}

TEST(LoadSettings, ValuesThatCannotBeConvertedLeaveWhatTheyFill) {
  MemorySettings store;
  store.Set("Options", "MusicVolume", "loud");
  store.Set("Options", "SndEnabled", "maybe");
  store.Set("Options", "Player Color", "99999");
  store.Set("Options", "gSpeed", "123456");
  store.Set("Tweak", "Speed", "2,5");
  store.Set("HiScore", "2Name", "a name of twenty ch.");
  State state;
  state.settings.MusicVolume = 77;
  state.settings.SndEnabled = false;
  state.Snakes(1).Model = 4;
  state.Snakes(3).BaseInterval = 88;

  LoadSettings(state, store);

  EXPECT_EQ(state.settings.MusicVolume, 77);
  EXPECT_FALSE(state.settings.SndEnabled);
  EXPECT_EQ(state.Snakes(1).Model, 4);
  EXPECT_EQ(state.Snakes(3).BaseInterval, 88);
  EXPECT_EQ(state.settings.SpeedRate, 2.5) << "a comma is a decimal point";
  EXPECT_EQ(state.HiScore(2).Name, "a name of twen");
}

TEST(LoadSettings, ValuesThatNoRuleCanUseTakeTheirDefaults) {
  for (const char* const unusable : {"0", "-5", "0.9", "nan"}) {
    MemorySettings store;
    for (const char* const key : {"MinSpeed", "MaxSpeed"}) store.Set("Tweak", key, unusable);
    store.Set("Options", "gSpeed", unusable);
    State state;
    LoadSettings(state, store);
    EXPECT_EQ(state.settings.MinSpeed, 20) << unusable;
    EXPECT_EQ(state.settings.MaxSpeed, 250) << unusable;
    EXPECT_EQ(state.settings.GlobalSpeed, 100) << unusable;
    EXPECT_EQ(state.Snakes(16).BaseInterval, 100) << unusable;
  }
  MemorySettings store;
  store.Set("Options", "Player Color", "-1");
  store.Set("Options", "Player Name", "The longest name");
  State state;
  for (const char* const volume : {"-1", "101"}) {
    store.Set("Options", "MusicVolume", volume);
    LoadSettings(state, store);
    EXPECT_EQ(state.settings.MusicVolume, 30) << volume;
  }
  EXPECT_EQ(state.Snakes(1).Model, 1);
  EXPECT_EQ(state.Snakes(1).Name, "The longest na");
}

TEST(LoadSettings, TheMultiplayerModesFixTheSpeedTweaks) {
  MemorySettings store;
  store.Set("Tweak", "Speed", "3");
  State state;
  state.settings.IncSpeed = true;
  state.mode.GameMode = GameMode::kDeathmatch;
  LoadSettings(state, store);
  EXPECT_EQ(state.settings.SpeedRate, 0.5);
  EXPECT_TRUE(state.settings.NoSpeedReset);
  EXPECT_FALSE(state.settings.IncSpeed);

  SaveSettings(state, store);
  EXPECT_EQ(store.Get("Tweak", "Speed"), "3") << "the stored tweaks are left alone";
}

TEST(SaveSettings, TheLevelsOwnSpeedsAreNotStored) {
  MemorySettings store;
  State state;
  LoadSettings(state, store);
  SettingsState& settings = state.settings;
  for (auto* const speed : {&settings.MinSpeed, &settings.MaxSpeed, &settings.SpeedRate}) {
    speed->ReplaceForLevel(77);
  }
  settings.IncSpeed.ReplaceForLevel(true);
  settings.MaxSpeed.Own() = 40;
  EXPECT_EQ(settings.MaxSpeed, 77) << "holds for the level, whatever the player chooses";
  SaveSettings(state, store);
  LoadSettings(state, store);
  EXPECT_EQ(settings.MinSpeed, 20);
  EXPECT_EQ(settings.MaxSpeed, 40);
  EXPECT_EQ(settings.SpeedRate, 0.5);
  EXPECT_FALSE(settings.IncSpeed);
}

TEST(SaveSettings, WhatTheGameHasNotChangedIsSetInTheWordsItWasToldAsRead) {
  for (const GameMode mode : {GameMode::kSingle, GameMode::kDeathmatch}) {
    MemorySettings store;
    store.Set("Tweak", "MinSpeed", "150,5");
    store.Set("Options", "MusicVolume", "101");
    store.Set("Options", "Show FPS", "0");
    store.Set("Options", "Player Name", "The longest name");
    State state;
    state.mode.GameMode = mode;
    LoadSettings(state, store);
    store.values.clear();
    SaveSettings(state, store);
    EXPECT_EQ(store.values, store.asRead);
  }
}

TEST(SaveSettings, WhatIsSavedIsFoundAgain) {
  MemorySettings store;
  State saved;
  LoadSettings(saved, store);
  saved.settings.MinSpeed = 120;
  saved.settings.MaxSpeed = 41;
  saved.settings.SndEnabled = false;
  saved.settings.MusicVolume = 100;
  saved.settings.SpeedRate = 1.5;
  saved.settings.IncSpeed = true;
  saved.settings.AnimatedItems = false;
  saved.settings.GlobalSpeed = 90;
  saved.shell.ShowFPS = false;
  saved.Snakes(1).Name = "J\xFCrgen";
  saved.HiScore(3) = {"Ada", 8123};
  ASSERT_TRUE(SaveSettings(saved, store));

  State found;
  LoadSettings(found, store);
  EXPECT_EQ(found.settings.MinSpeed, 120);
  EXPECT_EQ(found.settings.MaxSpeed, 41);
  EXPECT_FALSE(found.settings.SndEnabled);
  EXPECT_EQ(found.settings.MusicVolume, 100);
  EXPECT_EQ(found.settings.SpeedRate, 1.5);
  EXPECT_TRUE(found.settings.IncSpeed);
  EXPECT_FALSE(found.settings.AnimatedItems);
  EXPECT_EQ(found.Snakes(7).BaseInterval, 90);
  EXPECT_FALSE(found.shell.ShowFPS);
  EXPECT_EQ(found.Snakes(1).Name, "J\xFCrgen");
  EXPECT_EQ(found.HiScore(3).Name, "Ada");
  EXPECT_EQ(found.HiScore(3).Score, 8123);
}

}  // namespace
}  // namespace coilrun
