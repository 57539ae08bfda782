#include "game/movement.h"

#include <map>

#include "field.h"
#include "game/steps.h"

namespace coilrun {
namespace {

using testing::ElementsAre;

TEST(TurnPlayer, TakesEveryDirectionButTheReverse) {
  struct Row {
    Dir dir, asked, taken;
  };
  for (const auto& [dir, asked, taken] : std::vector<Row>{{Dir::kLeft, Dir::kRight, Dir::kLeft},
                                                          {Dir::kRight, Dir::kLeft, Dir::kRight},
                                                          {Dir::kForw, Dir::kBack, Dir::kForw},
                                                          {Dir::kBack, Dir::kForw, Dir::kBack},
                                                          {Dir::kLeft, Dir::kForw, Dir::kForw},
                                                          {Dir::kLeft, Dir::kLeft, Dir::kLeft},
                                                          {Dir::kNone, Dir::kBack, Dir::kBack},
                                                          {Dir::kLeft, Dir::kNone, Dir::kNone}}) {
    Field field;
    field.Put(1, {100, 100}, dir).NextDir = asked;
    TurnPlayer(field.state);
    EXPECT_EQ(field.Player().Dir, taken) << Word(dir) << " " << Word(asked);
    EXPECT_EQ(field.Player().NextDir, asked);
  }
}

/// Moves the player and returns what its cells show, `Seg(0)` first.
std::vector<std::string> CellsAfter(Field& field, Dir dir) {
  SnakeRec& player = field.Player();
  player.Dir = dir;
  MoveHead(field.state, kPlayer);
  BodyUpdate(field.state, kPlayer);
  std::vector<std::string> cells;
  for (int i = 0; i <= player.Length; ++i) cells.emplace_back(Word(player.Seg(i).Dir));
  return cells;
}

TEST(BodyUpdate, ACornerTravelsDownTheBody) {
  Field field;
  SnakeRec& player = field.Put(1, {200, 200}, Dir::kForw);
  player.Length = 3;
  for (int step = 0; step < 3; ++step) CellsAfter(field, Dir::kForw);
  EXPECT_THAT(CellsAfter(field, Dir::kLeft), ElementsAre("Left", "FL", "Forw", "Forw"));
  EXPECT_EQ((Point{player.Seg(1).X, player.Seg(1).Y}), (Point{200, 140}));
  EXPECT_THAT(CellsAfter(field, Dir::kLeft), ElementsAre("Left", "Left", "FL", "Forw"));
  EXPECT_THAT(CellsAfter(field, Dir::kLeft), ElementsAre("Left", "Left", "Left", "FL"));
  EXPECT_EQ(player.Tail.Dir, Dir::kFL);
  EXPECT_EQ((Point{player.Tail.X, player.Tail.Y}), (Point{200, 140}));
  EXPECT_THAT(CellsAfter(field, Dir::kLeft), ElementsAre("Left", "Left", "Left", "Left"));
}

TEST(BodyUpdate, EveryTurnHasItsCode) {
  const std::map<char, Dir> letters = {
      {'F', Dir::kForw}, {'B', Dir::kBack}, {'L', Dir::kLeft}, {'R', Dir::kRight}};
  for (const std::string code : {"FL", "FR", "BL", "BR", "LF", "LB", "RF", "RB"}) {
    Field field;
    field.Put(1, {200, 200});
    CellsAfter(field, letters.at(code[0]));
    EXPECT_EQ(CellsAfter(field, letters.at(code[1])).at(1), code);
  }
}

TEST(BodyUpdate, TwoTurnsInARowShowTwoCorners) {
  Field field;
  field.Put(1, {200, 200}).Length = 3;
  for (int step = 0; step < 3; ++step) CellsAfter(field, Dir::kForw);
  CellsAfter(field, Dir::kLeft);
  EXPECT_THAT(CellsAfter(field, Dir::kForw), ElementsAre("Forw", "LF", "FL", "Forw"));
}

TEST(BodyUpdate, OddLengthsTouchNothingElse) {
  for (const int length : {-5, 0, 100, 101, 32767}) {
    Field field;
    SnakeRec& player = field.Put(1, {200, 200});
    player.Length = length;
    player.Tail = {7, 7, Dir::kBack};
    BodyUpdate(field.state, kPlayer);
    EXPECT_EQ(player.Seg(0).X, 180) << length;
    EXPECT_EQ(player.Tail.X == 7, length < 0 || length > kLastSeg) << length;
  }
}

TEST(Growth, IsPaidOneCellAPassAndCapped) {
  Field field;
  field.Put(2, {200, 200}).Grow = 2;
  field.Player().Length = 120;
  for (int pass = 0; pass < 3; ++pass) ApplyGrowth(field.state);
  CapLengths(field.state);
  EXPECT_EQ(field.Snake(2).Length, 3);
  EXPECT_EQ(field.Snake(2).Grow, 0);
  EXPECT_EQ(field.Player().Length, 99);
}

TEST(StepAiSnakes, StepsWhoseTimersHaveFiredAndStartsAllAgain) {
  Field field;
  field.Put(3, {300, 300});
  field.Put(2, {200, 200});
  field.Item(ItemKind::kYellow, {500, 200});
  Timers& timers = field.state.timers;
  timers.Start(timers.iWait(2));
  StepAiSnakes(field.state);
  EXPECT_EQ(field.Snake(2).X, 220);
  EXPECT_EQ(field.Snake(2).Seg(1).X, 200);
  EXPECT_EQ(field.Snake(3).X, 300) << "its timer still runs";
  EXPECT_EQ(field.Snake(4).X, field.Snake(4).StartX) << "not in play";
  for (int k = 1; k <= 15; ++k) EXPECT_TRUE(timers.iWait(k).Enabled) << k;
  EXPECT_FALSE(timers.iWait(0).Enabled);
}

TEST(StepAiSnakes, TheyStandWhileTheLevelWaits) {
  Field field;
  field.Put(2, {200, 200});
  field.state.shell.WaitingForStart = true;
  StepAiSnakes(field.state);
  EXPECT_EQ(field.Snake(2).Dir, Dir::kNone);
  EXPECT_EQ(field.Snake(2).X, 200);
}

TEST(PlayerStep, ChecksWallsBeforeTheHeadMoves) {
  Field field;
  field.Put(1, {200, 200});
  field.Walls({{224, 200}});
  ASSERT_TRUE(PlayerStepDue(field.state));
  BeginPlayerStep(field.game);
  EXPECT_EQ(field.Player().X, 220) << "onto the wall";
  EXPECT_EQ(field.Player().Deaths, 0);
  EndPlayerStep(field.state);
  EXPECT_FALSE(PlayerStepDue(field.state));
  EXPECT_EQ(field.Player().Seg(1).X, 200);
  BeginPlayerStep(field.game);
  EXPECT_EQ(field.Player().Deaths, 1);
  EXPECT_EQ(field.Player().Head(), (Point{100, 100})) << "without a direction after the respawn";
}

}  // namespace
}  // namespace coilrun
