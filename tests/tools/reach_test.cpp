#include "kit/reach.h"

#include <array>
#include <memory>
#include <optional>
#include <random>

#include "game/collision.h"
#include "game/field.h"
#include "game/movement.h"
#include "game/walls.h"

namespace coilrun {
namespace {

constexpr std::array kForces = {Force::kNone, Force::kTnt, Force::kPower};

/// Plays one step and the wall check before the next; returns where the head is then, or nothing
/// when the snake died.
std::optional<Point> Played(const State& level, Point from, Dir dir, Force force) {
  const auto field = std::make_unique<Field>();
  field->state = level;
  SnakeRec& snake = field->Put(1, from, dir);
  snake.TNT = force == Force::kTnt ? 100 : 0;
  snake.Immortal = force == Force::kPower;
  MoveHead(field->state, 1);
  ColChk(field->game);
  WallCheck(field->game);
  if (snake.Deaths > 0) return std::nullopt;
  return snake.Head();
}

TEST(Ground, StepsAsTheGameDoes) {
  constexpr std::array kTypes = {"wall", "ani_wall", "wall_no_tnt", "ani_wall_no_tnt", "walls"};
  std::mt19937 dice(1);
  const auto below = [&dice](int end) {
    return static_cast<int>(dice() % static_cast<unsigned>(end));
  };
  int alive = 0;
  for (int round = 0; round < 40; ++round) {
    const auto field = std::make_unique<Field>();
    field->state.level.hasOpenWalls = below(2) == 1;
    for (int i = below(200); i > 0; --i) field->Walls({{below(640), below(480)}});
    for (int i = below(200); i > 0; --i) {
      field->UserWall({below(640), below(480)}, kTypes.at(static_cast<std::size_t>(below(5))),
                      below(2) == 1);
    }
    if (below(4) == 0) field->state.level.UserItemsUsed = false;
    const Ground ground(field->state);
    for (int i = 0; i < 40; ++i) {
      const Point from{1 + below(614), 1 + below(454)};
      const auto dir = static_cast<Dir>(1 + below(4));
      const Force force = kForces.at(static_cast<std::size_t>(below(3)));
      const auto played = Played(field->state, from, dir, force);
      alive += played ? 1 : 0;
      EXPECT_EQ(ground.Step(from, dir, force), played)
          << from.x << ' ' << from.y << ' ' << Word(dir);
    }
  }
  EXPECT_GT(alive, 400);
  EXPECT_LT(alive, 1500);
}

int Count(const PixelMarks& places) {
  int count = 0;
  for (int y = 0; y < 480; ++y) {
    for (int x = 0; x < 640; ++x) count += places.At({x, y}) != 0 ? 1 : 0;
  }
  return count;
}

TEST(Ground, KeepsToTheRasterOfTheStartUntilAnEdgeShiftsIt) {
  Field field;
  EXPECT_EQ(Count(Ground(field.state).PlacesFrom({310, 230})), 31 * 23);
  EXPECT_EQ(Count(Ground(field.state).PlacesFrom({313, 230})), 31 * 23);
  const int wrapped = (31 + 30 + 30) * (23 + 22 + 22);
  EXPECT_EQ(Count(Ground(field.state).PlacesFrom({310, 230}, Force::kPower)), wrapped);
  field.state.level.hasOpenWalls = true;
  const PixelMarks places = Ground(field.state).PlacesFrom({310, 230});
  EXPECT_EQ(Count(places), wrapped);
  EXPECT_TRUE(places.AnyTouches({0, 0, 0, 0}, {600, 15}));
  EXPECT_FALSE(places.AnyTouches({-2, 2, -2, 2}, {605, 15}));
}

/// A corridor of one lane across the open edge, closed by a wall at x 300.
TEST(Ground, NeverTurnsBackOnTheSpot) {
  Field field;
  field.state.level.hasOpenWalls = true;
  for (int x = 0; x <= 640; x += 20) field.Walls({{x, 200}, {x, 260}});
  field.Walls({{300, 240}});
  const PixelMarks places = Ground(field.state).PlacesFrom({330, 230});
  for (const int x : {330, 610, 15, 275}) EXPECT_NE(places.At({x, 230}), 0) << x;
  for (const int x : {310, 295, 10, 600}) EXPECT_EQ(places.At({x, 230}), 0) << x;
}

TEST(Ground, ForceOpensWhatItBlows) {
  const std::tuple<std::string, bool, bool> cases[] = {
      {"wall", true, true}, {"ani_wall", true, true}, {"wall_no_tnt", false, true}};
  for (const auto& [type, tnt, power] : cases) {
    Field field;
    for (int i = -40; i <= 40; i += 20) {
      for (const Point at : {Point{300 + i, 200}, {300 + i, 280}, {260, 240 + i}, {340, 240 + i}})
        field.UserWall(at, type);
    }
    const Ground ground(field.state);
    const auto reaches = [&](Force force) {
      return ground.PlacesFrom({110, 110}, force).At({310, 250}) != 0;
    };
    EXPECT_FALSE(reaches(Force::kNone)) << type;
    EXPECT_EQ(reaches(Force::kTnt), tnt) << type;
    EXPECT_EQ(reaches(Force::kPower), power) << type;
    EXPECT_FALSE(ground.PlacesFrom({310, 190}).Any()) << type;
  }
}

TEST(Ground, CountsFreeSteps) {
  Field field;
  field.Walls({{100, 100}});
  const Ground ground(field.state);
  const std::tuple<Point, Dir, int> cases[] = {
      {{190, 110}, Dir::kLeft, 3}, {{170, 110}, Dir::kLeft, 2}, {{130, 110}, Dir::kLeft, 0},
      {{70, 110}, Dir::kRight, 0}, {{110, 170}, Dir::kForw, 2}, {{570, 110}, Dir::kRight, 2},
      {{310, 410}, Dir::kBack, 2},
  };
  for (const auto& [from, dir, steps] : cases) {
    EXPECT_EQ(ground.FreeSteps(from, dir, 3), steps) << from.x << ' ' << from.y << ' ' << Word(dir);
  }
}

}  // namespace
}  // namespace coilrun
