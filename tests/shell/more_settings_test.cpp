#include "shell/more_settings.h"

#include <gmock/gmock.h>

#include "shell/memory_settings.h"

namespace coilrun {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MoreSettings, AreReadAndOnlyChangesAreStored) {
  MemorySettings store;
  store.Set("More", "Turns", "queue");
  store.Set("More", "Rivals", "master");
  store.Set("More", "Players", "3");
  store.Set("More", "Confirm", "True");
  store.Set("Keys", "1Up", "200 17");
  store.Set("Keys", "1Left", "");
  State state;
  LoadMoreSettings(state, store);
  EXPECT_EQ(state.more.Turns, TurnsMode::kQueue);
  EXPECT_EQ(RivalText(state.more.Rivals), "master");
  EXPECT_EQ(state.more.Players, 3);
  EXPECT_TRUE(state.more.Confirm);
  EXPECT_THAT(state.Keys(1).Up, ElementsAre(200, 17));
  EXPECT_THAT(state.Keys(1).Left, IsEmpty());
  EXPECT_THAT(state.Keys(1).Right, ElementsAre(205));

  const MoreState before = state.more;
  const auto keysBefore = state.Keys;
  const auto stored = store.values;
  SaveMoreSettings(state, {before, keysBefore}, store);
  EXPECT_EQ(store.values, stored);
  state.more.AnyKey = true;
  state.Keys(2).Up = {33};
  SaveMoreSettings(state, {before, keysBefore}, store);
  EXPECT_EQ(store.Get("More", "AnyKey"), "True");
  EXPECT_EQ(store.Get("Keys", "2Up"), "33");
  EXPECT_EQ(store.values.size(), stored.size() + 2);
}

TEST(MoreSettings, OptionsForOneRunComeLastAndAreNotStored) {
  MemorySettings store;
  store.Set("More", "Rivals", "master");
  store.Set("More", "Turns", "queue");
  const auto stored = store.values;
  for (const bool isClassic : {false, true}) {
    State state;
    state.more.forRun = {isClassic, RivalsFromText("clever,classic")};
    LoadMoreSettings(state, store);
    EXPECT_EQ(RivalText(state.more.Rivals), "clever,classic");
    EXPECT_EQ(state.more.Turns, isClassic ? TurnsMode::kLast : TurnsMode::kQueue);
    SaveMoreSettings(state, {state.more, state.Keys}, store);
    EXPECT_EQ(store.values, stored);
  }
}

TEST(MoreSettings, WhatCannotBeUsedCountsAsBuiltIn) {
  MemorySettings store;
  const std::pair<const char*, const char*> unusable[] = {{"Turns", "first"},
                                                          {"Motion", ""},
                                                          {"Effects", "Full"},
                                                          {"Confirm", "maybe"},
                                                          {"Rivals", "weak"},
                                                          {"Players", "0"},
                                                          {"Players", "5"},
                                                          {"Players", "1.5"},
                                                          {"KeepReplays", "-1"},
                                                          {"KeepReplays", "1001"},
                                                          {"Rivals", "classic,master"}};
  for (const auto& [key, value] : unusable) {
    store.values.clear();
    store.Set("More", key, value);
    State state;
    LoadMoreSettings(state, store);
    const State builtIn;
    EXPECT_TRUE(state.more.Turns == builtIn.more.Turns &&
                state.more.Motion == builtIn.more.Motion &&
                state.more.Effects == builtIn.more.Effects && !state.more.Confirm &&
                state.more.Rivals == builtIn.more.Rivals && state.more.Players == 1 &&
                state.more.KeepReplays == 50)
        << key << value;
  }
  for (const char* const list :
       {"1", "59", "28", "15", "240", "0", "x", "30 31 32 33 34", "30,31"}) {
    store.values.clear();
    store.Set("Keys", "1Up", list);
    State state;
    LoadMoreSettings(state, store);
    EXPECT_THAT(state.Keys(1).Up, ElementsAre(200)) << list;
  }
}

TEST(MoreSettings, AClassicRunNeitherReadsNorWritesThem) {
  MemorySettings store;
  store.Set("More", "Turns", "queue");
  State state;
  state.more.forRun.isClassic = true;
  LoadMoreSettings(state, store);
  EXPECT_EQ(state.more.Turns, TurnsMode::kLast);
  const MoreState before = state.more;
  state.more.AnyKey = true;
  SaveMoreSettings(state, {before, state.Keys}, store);
  EXPECT_EQ(store.values.size(), 1U);
}

}  // namespace
}  // namespace coilrun
