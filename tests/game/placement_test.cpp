#include "game/placement.h"

#include <functional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace coilrun {
namespace {

/// Adds spawn points in these states; one that is "gone" is not present.
void AddSpawnPoints(State& state, const std::vector<std::string>& states) {
  for (const std::string& text : states) {
    const int number = ++state.numSpawnPoints;
    state.SpawnPoints(number) = {100 * number, 50, text != "gone", Written<SpawnUse>{text}};
  }
}

/// Puts walls on a grid of 20 pixels over the whole field, but for the one left out.
void FillWithWalls(State& state, int leaveOut) {
  for (int row = 1; row <= 22; ++row) {
    for (int column = 1; column <= 30; ++column) {
      if (++state.numWalls != leaveOut) {
        state.Walls(state.numWalls) = {20 * column, 20 * row, true, WallKind::kS};
      }
    }
  }
}

TEST(PlaceItem, SpreadsTheFirstItemsOverAllSpawnPoints) {
  State state;
  AddSpawnPoints(state, {"", "", ""});
  std::set<int> used;
  for (int slot = 1; slot <= 5; ++slot) {
    EXPECT_TRUE(PlaceItem(state, ItemKind::kYellow, slot, true));
    const ItemRec& item = state.Items(ItemKind::kYellow)(slot);
    if (slot > 3) {
      EXPECT_EQ(item.SpawnPoint, -1);
      continue;
    }
    used.insert(item.SpawnPoint);
    EXPECT_EQ(item.At(), (Point{100 * item.SpawnPoint, 50}));
    EXPECT_EQ(state.SpawnPoints(item.SpawnPoint).State.Text(), std::to_string(slot));
  }
  EXPECT_EQ(used, (std::set<int>{1, 2, 3}));
}

TEST(PlaceItem, TakesTheFirstFreePointDuringPlayAndPassesNewOnesOnce) {
  using Row = std::tuple<std::vector<std::string>, int, std::vector<std::string>>;
  const Row rows[] = {{{"", ""}, 1, {"7", ""}},
                      {{"1", "", "3"}, 2, {"1", "7", "3"}},
                      {{"1", "new", "3"}, -1, {"1", "", "3"}},
                      {{"new", "", "new"}, 2, {"", "7", "new"}},
                      {{"0", "1"}, 1, {"7", "1"}},
                      {{"gone", ""}, 2, {"gone", "7"}}};
  for (const auto& [before, placedOn, after] : rows) {
    State state;
    AddSpawnPoints(state, before);
    EXPECT_TRUE(PlaceItem(state, ItemKind::kBlack, 7, false));
    EXPECT_EQ(state.Items(ItemKind::kBlack)(7).SpawnPoint, placedOn) << before[0] << before[1];
    for (std::size_t i = 0; i < after.size(); ++i) {
      EXPECT_EQ(state.SpawnPoints(static_cast<int>(i) + 1).State.Text(), after[i])
          << before[0] << before[1];
    }
  }
}

TEST(PlaceItem, RollsFreeSpotsInsideTheField) {
  State state;
  ItemRec& item = state.Items(ItemKind::kTnt)(1);
  std::set<int> columns;
  std::set<int> rows;
  for (int i = 0; i < 5000; ++i) {
    ASSERT_TRUE(PlaceItem(state, ItemKind::kTnt, 1, false));
    columns.insert(item.X);
    rows.insert(item.Y);
  }
  EXPECT_EQ(*columns.begin(), 20);
  EXPECT_EQ(*columns.rbegin(), 610);
  EXPECT_EQ(columns.size(), 60U);
  EXPECT_EQ(*rows.begin(), 20);
  EXPECT_EQ(*rows.rbegin(), 440);
  EXPECT_EQ(rows.size(), 43U);
  EXPECT_FALSE(item.Present);
}

TEST(PlaceItem, FindsTheOneFreeSpotOfACrowdedField) {
  State state;
  FillWithWalls(state, 30 * 10 + 15);  // the hole lies at (300, 220)
  for (int i = 0; i < 20; ++i) {
    ASSERT_TRUE(PlaceItem(state, ItemKind::kBlue, 1, false));
    EXPECT_EQ(state.Items(ItemKind::kBlue)(1).At(), (Point{300, 220}));
  }
}

TEST(PlaceItem, ParksTheItemOfAFullField) {
  State state;
  FillWithWalls(state, 0);
  EXPECT_FALSE(PlaceItem(state, ItemKind::kPower, 300, true));
  EXPECT_EQ(state.Items(ItemKind::kPower)(300).At(), kParked);
  EXPECT_EQ(state.Items(ItemKind::kPower)(300).SpawnPoint, -1);
}

TEST(IsSpotTaken, KeepsADistanceFromEachKindOfThing) {
  using Put = std::function<void(State&)>;
  const auto item = [](ItemKind kind, bool present = true) -> Put {
    return [=](State& state) {
      state.Items(kind).count = 1;
      state.Items(kind)(1) = {100, 100, present, -1, false};
    };
  };
  const auto wall = [](bool present) -> Put {
    return [=](State& state) { state.Walls(681) = {100, 100, present, WallKind::kS}; };
  };
  const auto userItem = [](bool present) -> Put {
    return [=](State& state) {
      state.numUserItems = 1;
      state.UserItems(1) = {100, 100, present, "x.bmp", UserItemType::kWall};
    };
  };
  const auto cell = [](int snake, int number) -> Put {
    return [=](State& state) {
      state.Snakes(snake).Length = 3;
      state.Snakes(snake).Seg(number) = {100, 100, Dir::kLeft};
    };
  };
  using Row = std::tuple<const char*, int, Put>;
  const Row rows[] = {{"yellow", 16, item(ItemKind::kYellow)},
                      {"red", 14, item(ItemKind::kRed)},
                      {"blue", 16, item(ItemKind::kBlue)},
                      {"black", 14, item(ItemKind::kBlack)},
                      {"TNT", 14, item(ItemKind::kTnt)},
                      {"power", 14, item(ItemKind::kPower)},
                      {"hidden item", -1, item(ItemKind::kRed, false)},
                      {"wall", 14, wall(true)},
                      {"blown wall", -1, wall(false)},
                      {"user item", 16, userItem(true)},
                      {"blown user item", -1, userItem(false)},
                      {"neck", -1, cell(1, 0)},
                      {"first cell", -1, cell(1, 1)},
                      {"body", 10, cell(1, 3)},
                      {"rival", -1, cell(2, 3)}};
  for (const auto& [thing, distance, put] : rows) {
    State state;
    put(state);
    for (int d = 0; d <= 20; ++d) {
      EXPECT_EQ(IsSpotTaken(state, {100 + d, 100 - d}), d <= distance) << thing << " at " << d;
      EXPECT_EQ(IsSpotTaken(state, {100 - d, 100}), d <= distance) << thing << " at " << d;
    }
  }
}

TEST(IsSpotTaken, RejectsTheEdgesOfTheField) {
  const State state;
  for (const Point spot : {Point{0, 20}, {615, 20}, {20, 0}, {20, 448}, {620, 20}, {20, 450}}) {
    EXPECT_TRUE(IsSpotTaken(state, spot)) << spot.x << ' ' << spot.y;
  }
  EXPECT_FALSE(IsSpotTaken(state, {614, 447}));
  EXPECT_FALSE(IsSpotTaken(state, {1, 1}));
}

}  // namespace
}  // namespace coilrun
