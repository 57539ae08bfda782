#include "content/placement.h"

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace coilrun {
namespace {

void AddSpawnPoints(State& state, const std::vector<std::string>& states) {
  for (const std::string& text : states) {
    const int number = ++state.numSpawnPoints;
    state.SpawnPoints(number) = {100 * number, 50, true, text};
  }
}

/// Walls on a raster of 20 pixels over the whole field, but for those left out.
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
    EXPECT_EQ(state.SpawnPoints(item.SpawnPoint).State, std::to_string(slot));
  }
  EXPECT_EQ(used, (std::set<int>{1, 2, 3}));
}

struct ScanCase {
  std::vector<std::string> before;
  int placedOn;
  std::vector<std::string> after;
};

TEST(PlaceItem, TakesTheFirstFreePointDuringPlayAndPassesNewOnesOnce) {
  const std::vector<ScanCase> cases = {
      {{"", ""}, 1, {"7", ""}},
      {{"1", "", "3"}, 2, {"1", "7", "3"}},
      {{"1", "new", "3"}, -1, {"1", "", "3"}},
      {{"new", "", "new"}, 2, {"", "7", "new"}},
      {{"0", "1"}, 1, {"7", "1"}},
  };
  for (const ScanCase& each : cases) {
    State state;
    AddSpawnPoints(state, each.before);
    EXPECT_TRUE(PlaceItem(state, ItemKind::kBlack, 7, false));
    EXPECT_EQ(state.Items(ItemKind::kBlack)(7).SpawnPoint, each.placedOn);
    for (std::size_t i = 0; i < each.after.size(); ++i) {
      EXPECT_EQ(state.SpawnPoints(static_cast<int>(i) + 1).State, each.after[i]);
    }
  }
}

TEST(PlaceItem, PassesPointsThatAreNotPresent) {
  State state;
  AddSpawnPoints(state, {"", ""});
  state.SpawnPoints(1).Present = false;
  PlaceItem(state, ItemKind::kRed, 1, false);
  EXPECT_EQ(state.Items(ItemKind::kRed)(1).SpawnPoint, 2);
}

TEST(PlaceItem, DrawsFreeSpotsInsideTheField) {
  State state;
  ItemRec& item = state.Items(ItemKind::kTnt)(1);
  int lowestX = 1000;
  int highestX = 0;
  int lowestY = 1000;
  int highestY = 0;
  for (int i = 0; i < 5000; ++i) {
    ASSERT_TRUE(PlaceItem(state, ItemKind::kTnt, 1, false));
    EXPECT_EQ(item.X % 10 + item.Y % 10, 0);
    lowestX = std::min<int>(lowestX, item.X);
    highestX = std::max<int>(highestX, item.X);
    lowestY = std::min<int>(lowestY, item.Y);
    highestY = std::max<int>(highestY, item.Y);
  }
  EXPECT_EQ(lowestX, 20);
  EXPECT_EQ(highestX, 610);
  EXPECT_EQ(lowestY, 20);
  EXPECT_EQ(highestY, 440);
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

TEST(PlaceItem, RefusesSlotsThatDoNotExist) {
  State state;
  EXPECT_THROW(PlaceItem(state, ItemKind::kRed, 301, true), std::out_of_range);
}

struct KeepOutCase {
  std::string thing;
  int distance;
};

void PutThing(State& state, const std::string& thing) {
  constexpr Point kAt{100, 100};
  const std::vector<std::string> kinds = {"yellow", "red", "blue", "black", "TNT", "power"};
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    if (thing != kinds[i]) continue;
    state.itemLists[i].count = 1;
    state.itemLists[i](1) = {kAt.x, kAt.y, true, -1, false};
  }
  if (thing == "wall") state.Walls(681) = {kAt.x, kAt.y, true, WallKind::kS};
  if (thing == "user item") {
    state.numUserItems = 1;
    state.UserItems(1) = {kAt.x, kAt.y, true, "x.bmp", "wall"};
  }
  SnakeRec& player = state.Snakes(1);
  if (thing == "body") {
    player.Length = 3;
    player.Seg(3) = {kAt.x, kAt.y, Dir::kLeft};
  }
  if (thing == "head") player.X = player.Y = kAt.x;
  if (thing == "neck") {
    player.Seg(0) = player.Seg(1) = {kAt.x, kAt.y, Dir::kLeft};
  }
  if (thing == "rival") {
    state.Snakes(2).Length = 5;
    state.Snakes(2).Seg(4) = {kAt.x, kAt.y, Dir::kLeft};
  }
}

TEST(IsSpotTaken, KeepsADistanceFromEachKindOfThing) {
  const std::vector<KeepOutCase> cases = {
      {"yellow", 16}, {"red", 14},  {"blue", 16},      {"black", 14}, {"TNT", 14},  {"power", 14},
      {"wall", 14},   {"body", 10}, {"user item", 16}, {"head", -1},  {"neck", -1}, {"rival", -1}};
  for (const auto& [thing, distance] : cases) {
    State state;
    PutThing(state, thing);
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
