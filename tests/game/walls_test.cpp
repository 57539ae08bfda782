#include "game/walls.h"

#include "field.h"

namespace coilrun {
namespace {

constexpr Point kHead{200, 200};

TEST(WallCheck, TouchIsLopsided) {
  const auto dies = [](int dx, int dy) {
    Field field;
    field.Put(1, {kHead.x + dx, kHead.y + dy});
    field.Walls({kHead});
    WallCheck(field.game);
    return field.Player().Deaths == 1;
  };
  EXPECT_TRUE(dies(-16, 0) && dies(0, -16) && dies(12, 0) && dies(0, 12) && dies(-16, 12));
  EXPECT_FALSE(dies(-17, 0) || dies(0, -17) || dies(13, 0) || dies(0, 13));
}

TEST(WallCheck, OneChargeBlowsTwoAndTheThirdKills) {
  using Row = std::tuple<int, int, int, int, int>;
  const Row rows[] = {{0, 1, 0, 1, 1}, {1, 1, 0, 0, 0}, {1, 2, 0, 0, 0},
                      {1, 3, 0, 1, 1}, {2, 3, 0, 0, 0}, {3, 4, 1, 0, 0}};
  for (const auto& [tnt, walls, left, standing, deaths] : rows) {
    Field field;
    field.Put(1, kHead).TNT = tnt;
    for (int wall = 0; wall < walls; ++wall) field.Walls({{kHead.x + 4 * wall, kHead.y}});
    WallCheck(field.game);
    EXPECT_EQ(field.Player().TNT, left) << tnt << " charges, " << walls << " walls";
    EXPECT_EQ(field.StandingWalls(), standing) << tnt << " charges, " << walls << " walls";
    EXPECT_EQ(field.Player().Deaths, deaths) << tnt << " charges, " << walls << " walls";
  }
}

TEST(WallCheck, GodsAndImmortalsPass) {
  for (const bool god : {false, true}) {
    Field field;
    field.Put(1, kHead).TNT = 1;
    field.Put(2, kHead);
    field.Walls({kHead});
    field.Player().Immortal = true;
    field.state.mode.GodMode = god;
    WallCheck(field.game);
    EXPECT_EQ(field.StandingWalls(), 1) << god;
    EXPECT_EQ(field.Snake(2).Deaths, god ? 0 : 1) << "others are checked as usual";
  }
}

TEST(WallCheck, UserWallsByType) {
  using Row = std::tuple<std::string, bool, int, int, int, bool>;
  const Row rows[] = {{"wall", true, 1, 0, 0, false},
                      {"ani_wall", true, 0, 1, 0, true},
                      {"wall", false, 0, 0, 0, false},
                      {"Wall", true, 0, 0, 0, true},
                      {"walls", true, 0, 0, 0, true},
                      {"wall_no_tnt", true, 5, 1, 5, true},
                      {"ani_wall_no_tnt", false, 5, 1, 5, false}};
  for (const auto& [type, present, tnt, deaths, left, stands] : rows) {
    Field field;
    field.Put(1, kHead).TNT = tnt;
    const UserItemRec& item = field.UserWall(kHead, type, present);
    field.state.level.UserItemsUsed = false;
    WallCheck(field.game);
    EXPECT_EQ(field.Player().Deaths, 0) << type << " without pictures";
    EXPECT_EQ(item.Present, present) << type;
    field.state.level.UserItemsUsed = true;
    WallCheck(field.game);
    EXPECT_EQ(field.Player().Deaths, deaths) << type;
    EXPECT_EQ(field.Player().TNT, left) << type;
    EXPECT_EQ(item.Present, stands) << type;
  }
}

TEST(WallCheck, BlastsPairAcrossWallsAndUserWallsAndOnlyTheFirstDeathCounts) {
  Field field;
  field.Put(1, kHead).TNT = 1;
  field.Walls({kHead});
  field.UserWall(kHead, "wall");
  WallCheck(field.game);
  EXPECT_EQ(field.Player().TNT, 0);
  EXPECT_THAT(field.host.calls,
              testing::ElementsAre("\\snd\\explode.wav 1", "\\snd\\explode.wav 1"));

  Field twice;
  twice.Put(1, kHead);
  twice.Walls({kHead, kHead, {100, 100}});
  twice.UserWall({100, 100}, "wall");
  WallCheck(twice.game);
  EXPECT_EQ(twice.Player().Deaths, 2) << "the user wall finds it on its start cell";
}

}  // namespace
}  // namespace coilrun
