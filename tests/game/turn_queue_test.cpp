#include "game/turn_queue.h"

#include <sstream>
#include <string>
#include <tuple>

#include "field.h"
#include "game/death.h"
#include "game/movement.h"

namespace coilrun {
namespace {

/// Plays presses (F, B, L, R) and steps (.) of a snake that goes left or stands still; returns
/// where it went, step by step, where it goes next and what waits.
std::string Steer(Field& field, std::string_view line) {
  State& state = field.state;
  std::string way;
  for (const char step : line) {
    if (step == 'F') AskTurn(state, 1, Dir::kForw);
    if (step == 'B') AskTurn(state, 1, Dir::kBack);
    if (step == 'L') AskTurn(state, 1, Dir::kLeft);
    if (step == 'R') AskTurn(state, 1, Dir::kRight);
    if (step != '.') continue;
    TurnPlayer(state);
    TakeQueuedTurn(state, 1);
    way += Word(field.Player().Dir).substr(0, 1);
  }
  way += ' ';
  way += Word(field.Player().NextDir).substr(0, 1);
  const TurnQueue& queue = state.People(1).queue;
  for (std::size_t i = 0; i < queue.count; ++i) way += Word(queue.turns.at(i)).substr(0, 1);
  return way;
}

TEST(TurnQueue, NothingPressedIsLostAndNothingKillsByHaste) {
  using Row = std::tuple<Dir, std::string, std::string, std::string>;
  const Row rows[] = {
      {Dir::kLeft, "FR..", "FR R", "one press a step"},
      {Dir::kLeft, "FRBL", " FRB", "two wait, more are dropped"},
      {Dir::kLeft, "FRB...", "FRB B", "all of them come in turn"},
      {Dir::kLeft, "R.", "L L", "the reverse of the heading is dropped"},
      {Dir::kLeft, "FB.", "B B", "a reverse corrects the press before"},
      {Dir::kLeft, "FRL..", "FL L", "it is looked at again against what is asked for then"},
      {Dir::kLeft, "FRLR", " FR", "and corrected back"},
      {Dir::kLeft, "FFRR", " FR", "what is asked for already does nothing"},
      {Dir::kLeft, "LF.", "F F", "so does the heading"},
      {Dir::kLeft, "F.BR.", "FR R", "a reverse of the turn just made is dropped"},
      {Dir::kNone, "LR.", "R R", "from a stand any way is free"},
      {Dir::kNone, "LF..", "LF F", "and presses wait as well"},
  };
  for (const auto& [heading, line, seen, why] : rows) {
    Field field;
    field.state.more.Turns = TurnsMode::kQueue;
    field.Put(1, {300, 300}, heading).NextDir = heading;
    EXPECT_EQ(Steer(field, line), seen) << line << ": " << why;
  }
}

TEST(TurnQueue, WithoutItTheLastPressCounts) {
  Field field;
  field.Put(1, {300, 300}, Dir::kLeft);
  EXPECT_EQ(Steer(field, "FR"), " R");
  EXPECT_EQ(Steer(field, ".B."), "LB B");
}

TEST(TurnQueue, ARespawnEmptiesIt) {
  Field field;
  field.state.more.Turns = TurnsMode::kQueue;
  field.Put(1, {300, 300}, Dir::kLeft);
  Steer(field, "FRB");
  RespawnSnake(field.state, 1);
  EXPECT_EQ(Steer(field, ""), " ");
}

}  // namespace
}  // namespace coilrun
