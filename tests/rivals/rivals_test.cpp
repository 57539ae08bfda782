#include "rivals/rivals.h"

#include "game/field.h"
#include "rivals/clever.h"
#include "support/arena.h"
#include "support/match.h"

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
  EXPECT_EQ(shut.Choice(), Dir::kForw) << "all is deadly";
  shut.field.Snake(2).TNT = 1;
  EXPECT_EQ(shut.Choice(), Dir::kRight);
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

TEST(MakeDrivers, DealsTheKindsOutInTurn) {
  Drawing pocket({"...........", ".xxx.......", ".xo.@bcdefg", ".xxx......h"}, Dir::kLeft);
  const RivalList list{{RivalKind::kClassic, RivalKind::kClever}};
  EXPECT_EQ(MakeDrivers(list, 1).Choose(pocket.field.state, 2), Dir::kForw);
  EXPECT_EQ(MakeDrivers(list, 2).Choose(pocket.field.state, 2), Dir::kLeft);
}

TEST(Soak, MatchesOfSixteenEndWithConsistentCounts) {
  for (std::uint64_t seed = 1; seed <= 3; ++seed) {
    const bool hunting = seed == 2;
    const ArenaPlan plan{.openEdges = seed == 3,
                         .rim = seed == 1,
                         .segments = static_cast<int>(3 * seed),
                         .rivals = 15,
                         .keys = "numRed=2\r\nnumBlue=3\r\nnumBlack=2\r\nnumTNT=3\r\n",
                         .seed = seed};
    Match match(
        {.level = Arena(plan).Text(), .hunting = hunting, .limit = hunting ? 20 : 5, .seed = seed},
        MakeDrivers({{RivalKind::kClever, RivalKind::kClassic}}));
    match.Play(600);
    EXPECT_TRUE(match.ended) << "match " << seed;
    for (int s = 2; s <= kMaxSnakes; ++s) {
      EXPECT_EQ(match.Of(s).Deaths(), match.state().Snakes(s).Deaths) << s;
    }
  }
}

}  // namespace
}  // namespace coilrun
