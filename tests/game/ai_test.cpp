#include "game/ai.h"

#include "field.h"

namespace coilrun {
namespace {

using Row = std::tuple<const char*, Point, Dir, std::vector<Point>, std::vector<Point>, Dir>;

TEST(AIChoose, ByTargetEdgeObstacleAndReversal) {
  using enum Dir;
  const Row rows[] = {
      {"longer axis", {300, 200}, kNone, {{420, 150}}, {}, kRight},
      {"equal axes", {300, 200}, kNone, {{350, 150}}, {}, kForw},
      {"first of equals", {300, 200}, kNone, {{300, 240}, {340, 200}}, {}, kBack},
      {"no items", {300, 200}, kLeft, {}, {}, kLeft},
      {"worked example", {300, 200}, kRight, {{120, 200}}, {}, kBack},
      {"left to right", {300, 200}, kLeft, {{500, 190}}, {}, kForw},
      {"at the target", {300, 200}, kLeft, {{300, 200}}, {}, kNone},
      {"at the target and the edge", {20, 200}, kLeft, {{20, 200}}, {}, kBack},
      {"left edge", {20, 459}, kLeft, {{20, 20}}, {}, kBack},
      {"left edge, low", {20, 460}, kLeft, {{500, 460}}, {}, kForw},
      {"not yet", {21, 300}, kLeft, {{1, 300}}, {}, kLeft},
      {"right edge", {600, 21}, kRight, {{500, 21}}, {}, kForw},
      {"right edge, high", {600, 20}, kRight, {{500, 20}}, {}, kBack},
      {"top edge", {21, 20}, kForw, {{500, 20}}, {}, kLeft},
      {"top edge, left", {20, 20}, kForw, {{500, 20}}, {}, kRight},
      {"bottom edge", {619, 440}, kBack, {{20, 440}}, {}, kRight},
      {"bottom edge, right", {620, 440}, kBack, {{20, 440}}, {}, kLeft},
      {"swerve at a touch", {300, 200}, kLeft, {{100, 200}}, {{261, 219}}, kForw},
      {"no touch", {300, 200}, kLeft, {{100, 200}}, {{260, 200}, {280, 220}}, kLeft},
      {"into a second wall", {300, 200}, kLeft, {{100, 200}}, {{280, 200}, {300, 180}}, kForw},
      {"swerve up to left", {300, 200}, kForw, {{300, 20}}, {{300, 180}}, kLeft},
      {"swerve right to down", {300, 200}, kRight, {{500, 200}}, {{320, 200}}, kBack},
      {"swerve down to right", {300, 200}, kBack, {{300, 400}}, {{300, 220}}, kRight},
      {"edge turn swapped", {20, 200}, kLeft, {{1, 200}}, {{20, 220}}, kRight},
      {"back to forw", {300, 200}, kBack, {{300, 20}}, {}, kRight},
      {"back to forw, probed", {300, 200}, kBack, {{290, 20}}, {{280, 200}}, kForw},
      {"forw to back", {300, 200}, kForw, {{290, 400}}, {}, kLeft},
      {"forw to back, unprobed", {300, 200}, kForw, {{300, 400}}, {{320, 200}}, kRight}};
  for (const auto& [what, head, dir, yellow, walls, choice] : rows) {
    Field field;
    for (WallRec& wall : field.state.Walls) wall.X = 2000;
    field.Put(1, {900, 900}, kNone);
    field.Snake(1).Seg(0).X = field.Snake(1).Seg(1).X = field.Snake(1).Tail.X = 900;
    field.Put(2, head, dir);
    for (const Point at : yellow) field.Item(ItemKind::kYellow, at).Present = false;
    for (const Point at : walls) field.Walls({at});
    for (WallRec& wall : field.state.Walls) wall.Present = false;
    field.state.TargetReached = true;
    EXPECT_EQ(AIChoose(field.state, 2), choice) << what;
    EXPECT_EQ(field.state.TargetReached, !yellow.empty() && yellow[0] == head) << what;
  }
}

TEST(AIChoose, SeesOtherSnakesButNotItselfNorTheLaterWalls) {
  Field field;
  SnakeRec& rival = field.Put(1, {500, 400});
  SnakeRec& own = field.Put(2, {300, 200}, Dir::kLeft);
  rival.Length = own.Length = field.Snake(3).Length = 3;
  field.Item(ItemKind::kBlue, {100, 200});
  field.Item(ItemKind::kTnt, {300, 220});
  const auto choiceBefore = [&field](auto& thing) {
    const auto away = thing;
    thing.X = 280;
    thing.Y = 200;
    const Dir choice = AIChoose(field.state, 2);
    thing = away;
    return choice;
  };
  EXPECT_EQ(choiceBefore(rival), Dir::kForw);
  EXPECT_EQ(choiceBefore(rival.Tail), Dir::kForw);
  EXPECT_EQ(choiceBefore(rival.Seg(0)), Dir::kForw);
  EXPECT_EQ(choiceBefore(rival.Seg(3)), Dir::kForw);
  EXPECT_EQ(choiceBefore(rival.Seg(4)), Dir::kLeft) << "behind the tail";
  EXPECT_EQ(choiceBefore(own.Seg(1)), Dir::kLeft);
  EXPECT_EQ(choiceBefore(field.Snake(3).Seg(1)), Dir::kLeft) << "not in play";
  EXPECT_EQ(choiceBefore(field.state.Walls(200)), Dir::kForw);
  EXPECT_EQ(choiceBefore(field.state.Walls(201)), Dir::kLeft);
}

}  // namespace
}  // namespace coilrun
