#include "game/movement.h"

#include <map>

#include "field.h"
#include "game/steps.h"

namespace coilrun {
namespace {

TEST(TurnPlayer, TakesEveryDirectionButTheReverse) {
  using Row = std::tuple<Dir, Dir, Dir>;
  const Row rows[] = {{Dir::kLeft, Dir::kRight, Dir::kLeft}, {Dir::kRight, Dir::kLeft, Dir::kRight},
                      {Dir::kForw, Dir::kBack, Dir::kForw},  {Dir::kBack, Dir::kForw, Dir::kBack},
                      {Dir::kLeft, Dir::kForw, Dir::kForw},  {Dir::kLeft, Dir::kLeft, Dir::kLeft},
                      {Dir::kNone, Dir::kBack, Dir::kBack},  {Dir::kLeft, Dir::kNone, Dir::kNone}};
  for (const auto& [dir, asked, taken] : rows) {
    Field field;
    field.Put(1, {100, 100}, dir).NextDir = asked;
    TurnPlayer(field.state);
    EXPECT_EQ(field.Player().Dir, taken) << Word(dir) << " " << Word(asked);
    EXPECT_EQ(field.Player().NextDir, asked);
  }
}

TEST(BodyUpdate, CornersTravelDownTheBody) {
  const std::map<char, Dir> dirs = {
      {'F', Dir::kForw}, {'B', Dir::kBack}, {'L', Dir::kLeft}, {'R', Dir::kRight}};
  using Row = std::pair<const char*, const char*>;
  const Row rows[] = {{"FFFL", "Left FL Forw Forw"},   {"FFFLL", "Left Left FL Forw"},
                      {"FFFLLL", "Left Left Left FL"}, {"FFFLLLL", "Left Left Left Left"},
                      {"FFFLF", "Forw LF FL Forw"},    {"FFFRB", "Back RB FR Forw"},
                      {"BBBRF", "Forw RF BR Back"},    {"BBBLB", "Back LB BL Back"}};
  for (const auto& [moves, cells] : rows) {
    Field field;
    SnakeRec& player = field.Put(1, {200, 200});
    player.Length = 3;
    std::vector<Point> trail;
    for (const char move : std::string_view(moves)) {
      trail.insert(trail.begin(), player.Head());
      player.Dir = dirs.at(move);
      MoveHead(field.state, kPlayer);
      BodyUpdate(field.state, kPlayer);
    }
    std::string shown;
    for (int i = 0; i <= player.Length; ++i) {
      shown.append(i == 0 ? "" : " ").append(Word(player.Seg(i).Dir));
      EXPECT_EQ((Point{player.Seg(i).X, player.Seg(i).Y}),
                trail.at(static_cast<std::size_t>(std::max(i - 1, 0))));
    }
    EXPECT_EQ(shown, cells) << moves;
    EXPECT_EQ((Point{player.Tail.X, player.Tail.Y}), trail.at(2));
    EXPECT_TRUE(shown.ends_with(Word(player.Tail.Dir))) << moves;
  }
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
  StepAiSnakes(field.game);
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
  EXPECT_EQ(field.After([](Game& game) { StepAiSnakes(game); }), "2.Dir=none");
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
