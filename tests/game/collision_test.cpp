#include "game/collision.h"

#include "field.h"

namespace coilrun {
namespace {

constexpr auto kOpen = [](Field& field) { field.state.level.hasOpenWalls = true; };
constexpr auto kImmortal = [](Field& field) {
  field.Player().Immortal = true;
  field.Player().ImmortalSecs = 9;
};
constexpr auto kClosed = [](Field&) {};
constexpr auto kNoClip = [](Field& field) { field.state.mode.NoClip = true; };
constexpr auto kGod = [](Field& field) {
  field.state.mode.GodMode = true;
  field.state.level.hasOpenWalls = true;
};

TEST(ColChk, EdgesWrapKillOrLetPass) {
  using Row = std::tuple<void (*)(Field&), Point, Point, int>;
  const Point start{100, 100};
  const Row rows[] = {{kOpen, {0, 200}, {600, 200}, 0},     {kOpen, {1, 200}, {1, 200}, 0},
                      {kOpen, {615, 200}, {15, 200}, 0},    {kOpen, {614, 200}, {614, 200}, 0},
                      {kOpen, {200, 0}, {200, 440}, 0},     {kOpen, {200, 455}, {200, 15}, 0},
                      {kOpen, {-40, 700}, {600, 15}, 0},    {kImmortal, {0, 200}, {600, 200}, 0},
                      {kClosed, {0, 200}, start, 1},        {kClosed, {1, 1}, {1, 1}, 0},
                      {kClosed, {615, 200}, start, 1},      {kClosed, {614, 454}, {614, 454}, 0},
                      {kClosed, {200, 0}, start, 1},        {kClosed, {200, 455}, start, 1},
                      {kNoClip, {-40, 200}, {-40, 200}, 0}, {kGod, {-40, 200}, {-40, 200}, 0}};
  for (const auto& [set, head, after, deaths] : rows) {
    Field field;
    field.Put(1, head);
    set(field);
    ColChk(field.game);
    EXPECT_EQ(field.Player().Head(), after) << head.x << "," << head.y;
    EXPECT_EQ(field.Player().Deaths, deaths) << head.x << "," << head.y;
  }
}

TEST(ColChk, BodiesKillByOverlapFromTheSecondCellOn) {
  constexpr auto kStanding = [](Field& field) { field.Player().Dir = Dir::kNone; };
  using Row = std::tuple<void (*)(Field&), Point, Point, bool>;
  const Point far{400, 400};
  const Row rows[] = {{kClosed, far, {219, 200}, true},    {kClosed, far, {220, 200}, false},
                      {kClosed, far, {181, 219}, true},    {kClosed, far, {180, 200}, false},
                      {kClosed, far, {200, 180}, false},   {kClosed, far, {200, 220}, false},
                      {kClosed, {200, 200}, far, false},   {kStanding, far, {200, 200}, false},
                      {kImmortal, far, {200, 200}, false}, {kGod, far, {200, 200}, false}};
  for (const auto& [set, first, second, dies] : rows) {
    for (const int owner : {1, 2}) {
      Field field;
      field.Put(2, far, Dir::kNone);
      field.Put(1, {200, 200});
      field.Body(owner, {first, second});
      set(field);
      ColChk(field.game);
      EXPECT_EQ(field.Player().Deaths, dies ? 1 : 0)
          << first.x << " " << second.x << "," << second.y << " of " << owner;
    }
  }
}

TEST(ColChk, AKillCountsTheVictimsLengthAfterItsRespawn) {
  using Row = std::tuple<GameMode, bool, int, int, int, int>;
  const Row rows[] = {{GameMode::kSingle, false, 2, 0, 0, 0},
                      {GameMode::kDeathmatch, false, 2, 1, 3, 0},
                      {GameMode::kDeathmatch, false, 1, -1, 0, 0},
                      {GameMode::kNetDeathmatch, true, 2, 1, 3, 3}};
  for (const auto& [mode, hunting, victim, frags, score, grow] : rows) {
    Field field;
    field.state.mode.GameMode = mode;
    field.state.mode.HuntingMode = hunting;
    field.state.mode.MatchLimit = 50;
    field.Put(1, {400, 400});
    field.Put(victim, {200, 200}).Length = 40;
    field.Body(1, {{380, 400}, {200, 200}});
    ColChk(field.game);
    EXPECT_EQ(field.Snake(victim).Deaths, 1) << Word(mode) << victim;
    EXPECT_EQ(field.Snake(victim).Length, 1) << Word(mode) << victim;
    EXPECT_EQ(field.Player().Frags, frags) << Word(mode) << victim;
    EXPECT_EQ(field.Player().Score, score) << Word(mode) << victim;
    EXPECT_EQ(field.Player().Grow, grow) << Word(mode) << victim;
  }
}

TEST(ColChk, GoesOnAfterADeathWithTheStateThatItFinds) {
  Field field;
  field.Put(1, {-5, 200});
  field.Put(2, {100, 700});
  field.Item(ItemKind::kYellow, {100, 100});
  ColChk(field.game);
  EXPECT_EQ(field.Player().YellowEaten, 1) << "eaten on the start cell, after the death";
  EXPECT_EQ(field.Snake(2).Deaths, 1);
}

TEST(ColChk, ALevelWithoutRequirementsCompletesOncePerSnake) {
  Field field;
  field.state.level.reqYellow = 0;
  field.state.level.nextLvl = ".\\lvl\\lvl2.dat";
  field.Put(2, {300, 300});
  ColChk(field.game);
  EXPECT_THAT(field.host.calls,
              testing::ElementsAre("level .\\lvl\\lvl2.dat", "level .\\lvl\\lvl2.dat"));
}

TEST(ColChk, StaysInsideItsTablesWhateverTheCountsSay) {
  Field field;
  field.state.mode.NumSnakes = 32767;
  for (SnakeRec& snake : field.state.Snakes) snake.Length = 32767;
  for (ItemList& items : field.state.itemLists) items.count = 32767;
  EXPECT_NO_THROW(ColChk(field.game));
  field.state.mode.NumSnakes = -3;
  EXPECT_NO_THROW(ColChk(field.game));
}

}  // namespace
}  // namespace coilrun
