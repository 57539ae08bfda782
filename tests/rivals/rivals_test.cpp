#include "rivals/rivals.h"

#include "game/field.h"
#include "rivals/clever.h"
#include "rivals/hunt.h"
#include "rivals/master.h"
#include "support/arena.h"
#include "support/match.h"
#include "support/soak.h"

namespace coilrun {
namespace {

/// A field drawn with places 20 pixels apart, the first at (10, 10): '@' is the head of snake 2,
/// 'b' to 'm' its body, '#' a wall, 'o' a banana, 'x' the cells of a body that stands still.
struct Drawing {
  Drawing(const std::vector<std::string>& rows, Dir heading) {
    field.Put(1, {610, 450}, Dir::kNone);
    SnakeRec& own = field.Put(2, {610, 450}, heading);
    SnakeRec& other = field.Put(3, {610, 450}, Dir::kNone);
    for (int y = 0; y < static_cast<int>(rows.size()); ++y) {
      const std::string& row = rows[static_cast<std::size_t>(y)];
      for (int x = 0; x < static_cast<int>(row.size()); ++x) {
        const char cell = row[static_cast<std::size_t>(x)];
        const Point at{10 + kCell * x, 10 + kCell * y};
        if (cell == '@') field.Put(2, at, heading);
        if (cell == '#') field.Walls({at});
        if (cell == 'o') field.Item(ItemKind::kYellow, at);
        if (cell == 'x') other.Seg(++other.Length) = {at.x, at.y, Dir::kLeft};
        if ('b' <= cell && cell <= 'm') {
          own.Seg(cell - 'a') = {at.x, at.y, heading};
          own.Length = std::max<int>(own.Length, cell - 'a');
        }
      }
    }
  }

  Dir Choice() { return CleverDriver().Choose(field.state, 2); }

  Field field;
};

TEST(Clever, GoesWhereTheRulesLetItLive) {
  using enum Dir;
  using Row = std::tuple<const char*, std::vector<std::string>, Dir, Dir>;
  const Row rows[] = {
      {"to the banana", {"......", ".@...o", "......"}, kForw, kRight},
      {"around a wall", {"......", ".o.#@.", "...#.."}, kLeft, kForw},
      {"not into the edge", {"@bc...", "......"}, kLeft, kBack},
      {"around a standing body", {"......", "o.x@..", "..x...", "..x..."}, kLeft, kForw},
      {"not into a pocket smaller than its body",
       {"...........", ".xxx.......", ".xo.@bcdefg", ".xxx......h"},
       kLeft,
       kForw},
      {"after its tail", {"xxxx", "x@bx", "xdcx", "xxxx"}, kLeft, kBack},
  };
  for (const auto& [what, drawing, heading, choice] : rows) {
    EXPECT_EQ(Drawing(drawing, heading).Choice(), choice) << what;
  }
}

TEST(Clever, FindsThePlacesThatAnOpenEdgeLeadsTo) {
  Drawing wide({"", "@"}, Dir::kForw);
  wide.field.Item(ItemKind::kYellow, {560, 30});
  EXPECT_EQ(wide.Choice(), Dir::kRight);
  wide.field.state.level.hasOpenWalls = true;
  EXPECT_EQ(wide.Choice(), Dir::kLeft);
  wide.field.Walls({{600, 30}});
  EXPECT_NE(wide.Choice(), Dir::kLeft) << "a wall where the head comes in again";
}

TEST(Clever, TakesTntThroughWallsWhenNothingElseIsLeft) {
  Drawing shut({"xxxxx", "x@.x.", "xxxxx"}, Dir::kForw);
  shut.field.Walls({{60, 30}});
  EXPECT_EQ(shut.Choice(), Dir::kRight) << "all is deadly, and walls cost no frag";
  shut.field.Snake(2).TNT = 1;
  EXPECT_EQ(shut.Choice(), Dir::kRight);
  Drawing fed({"", "..@.....o"}, Dir::kForw);
  for (int y = 10; y < 480; y += kCell) fed.field.Walls({{80, y}});
  EXPECT_NE(fed.Choice(), Dir::kRight);
  fed.field.Snake(2).TNT = 1;
  EXPECT_EQ(fed.Choice(), Dir::kRight);
}

TEST(Clever, DiesOnAWallRatherThanOnItsOwnBody) {
  // The edge is to its left, its body on the other sides: the way on ends after one step.
  Drawing trapped({"mbc", "@.d", "hfe"}, Dir::kForw);
  trapped.field.state.mode.GameMode = GameMode::kDeathmatch;
  EXPECT_EQ(trapped.Choice(), Dir::kLeft);
  trapped.field.state.mode.GameMode = GameMode::kSingle;
  EXPECT_NE(trapped.Choice(), Dir::kLeft) << "where no frags count, every step counts";
}

TEST(Clever, KeepsAwayFromAnImmortalSnake) {
  Drawing meeting({"..........", "....@....o", ".........."}, Dir::kRight);
  EXPECT_EQ(meeting.Choice(), Dir::kRight);
  SnakeRec& other = meeting.field.Put(3, {150, 30}, Dir::kLeft);
  other.Immortal = true;
  EXPECT_NE(meeting.Choice(), Dir::kRight);
}

TEST(Clever, AnswersTheSameForTheSameStateAndLeavesTheDiceAlone) {
  Match match({.level = Arena({.rivals = 8}).Text()}, MakeDrivers({{RivalKind::kClever}}));
  match.Play(20);
  State& state = match.state();
  const Dir first = CleverDriver().Choose(state, 2);
  Rnd dice = state.Rnd;
  CleverDriver other;
  for (int s = 9; s >= 3; --s) other.Choose(state, s);
  EXPECT_EQ(other.Choose(state, 2), first);
  EXPECT_EQ(state.Rnd.Next(), dice.Next());
}

TEST(Clever, OutlivesTheClassicRule) {
  const auto deaths = [](RivalKind kind) {
    Match match({.level = Arena({.rivals = 4}).Text()}, MakeDrivers({{kind}}));
    match.Play(60);
    int sum = 0;
    for (int s = 2; s <= 5; ++s) sum += match.Of(s).Deaths();
    return sum;
  };
  EXPECT_LT(deaths(RivalKind::kClever) * 4, deaths(RivalKind::kClassic));
}

TEST(Hunt, ShutsPreyInBeforeItGetsOut) {
  using enum Dir;
  Drawing lane({"........@...", "########....", "............", "########...."}, kRight);
  SnakeRec& prey = lane.field.Put(3, {110, 50}, kRight);
  prey.Length = 20;
  Ground ground;
  ground.Look(lane.field.state, 2);
  Hunt hunt;
  hunt.Look(ground, lane.field.state, 2);
  const int ahead = hunt.Taken(ground.FirstStep(kRight));
  EXPECT_GT(hunt.Taken(ground.FirstStep(kBack)), ahead + 20) << "into its way out";
  prey.Y = 10 + 20 * kCell;
  hunt.Look(ground, lane.field.state, 2);
  EXPECT_EQ(hunt.Taken(ground.FirstStep(kBack)), 0) << "too far away";
}

TEST(Master, TakesAtomicPowerWhenNoWayLeadsOn) {
  for (const auto& [at, choice] : {std::pair(30, Dir::kLeft), std::pair(110, Dir::kRight)}) {
    Drawing shut({"xxxxxxx", "x..@..x", "xxxxxxx"}, Dir::kForw);
    shut.field.Item(ItemKind::kPower, {at, 30});
    EXPECT_EQ(MasterDriver().Choose(shut.field.state, 2), choice);
  }
}

TEST(Master, DiesWhereItCostsFewestFrags) {
  using enum Dir;
  using Row = std::tuple<const char*, std::vector<std::string>, Dir, Dir>;
  const Row rows[] = {
      {"at the edge", {"@bcd", "hgfe", "ijkl"}, kLeft, kForw},
      {"on a wall", {"....#...", ".x@bc...", ".jihgd..", ".kfe...."}, kLeft, kLeft},
  };
  for (const auto& [what, drawing, heading, choice] : rows) {
    Drawing trap(drawing, heading);
    EXPECT_NE(MasterDriver().Choose(trap.field.state, 2), kBack) << what << ": its own body";
  }
}

TEST(Drivers, KeepMovingAndNeverReverse) {
  for (const RivalKind kind : {RivalKind::kClever, RivalKind::kMaster}) {
    Match match({.level = Arena({.rim = true, .segments = 12, .rivals = 15}).Text()},
                MakeDrivers({{kind}}));
    Table<Dir, kMaxSnakes> before;
    Table<Point, kMaxSnakes> place;
    Table<int, kMaxSnakes> stood;
    for (int frame = 0; frame < 6000; ++frame) {
      match.Frame();
      for (int s = 2; s <= kMaxSnakes; ++s) {
        const SnakeRec& snake = match.state().Snakes(s);
        const bool stands = snake.Head() == place(s) || snake.Dir == Dir::kNone;
        stood(s) = stands ? stood(s) + 1 : 0;
        EXPECT_LT(stood(s), 500) << "snake " << s << " stands still";
        EXPECT_FALSE(IsDirection(snake.Dir) && snake.Dir == Reverse(before(s))) << s;
        before(s) = snake.Dir;
        place(s) = snake.Head();
      }
    }
  }
}

TEST(MakeDrivers, DealsTheKindsOutInTurn) {
  Drawing pocket({"...........", ".xxx.......", ".xo.@bcdefg", ".xxx......h"}, Dir::kLeft);
  const RivalList list{{RivalKind::kClassic, RivalKind::kClever}};
  EXPECT_EQ(MakeDrivers(list, 1).Choose(pocket.field.state, 2), Dir::kForw);
  EXPECT_EQ(MakeDrivers(list, 2).Choose(pocket.field.state, 2), Dir::kLeft);
}

TEST(Soak, MatchesOfSixteenEndWithConsistentCounts) {
  for (std::uint64_t seed = 1; seed <= 3; ++seed) EXPECT_EQ(SoakFault(seed), "") << seed;
}

}  // namespace
}  // namespace coilrun
