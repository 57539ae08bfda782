#include "game/movement.h"

#include <algorithm>
#include <array>

#include "game/geometry.h"

namespace coilrun {
namespace {

/// A turn code, with the direction in which the snake entered the cell and the one in which it
/// left.
struct Turn {
  Dir entered;
  Dir left;
  Dir code;
};
constexpr std::array<Turn, 8> kTurns = {{{Dir::kForw, Dir::kLeft, Dir::kFL},
                                         {Dir::kForw, Dir::kRight, Dir::kFR},
                                         {Dir::kBack, Dir::kLeft, Dir::kBL},
                                         {Dir::kBack, Dir::kRight, Dir::kBR},
                                         {Dir::kLeft, Dir::kForw, Dir::kLF},
                                         {Dir::kLeft, Dir::kBack, Dir::kLB},
                                         {Dir::kRight, Dir::kForw, Dir::kRF},
                                         {Dir::kRight, Dir::kBack, Dir::kRB}}};

/// What a cell shows when it was entered in one direction and left in another: a corner if the two
/// are at right angles, otherwise the direction in which it was left.
Dir Joined(Dir entered, Dir left) {
  for (const Turn& turn : kTurns) {
    if (turn.entered == entered && turn.left == left) return turn.code;
  }
  return left;
}

/// A corner as the plain direction in which the snake left it.
Dir Straightened(Dir dir) {
  for (const Turn& turn : kTurns) {
    if (turn.code == dir) return turn.left;
  }
  return dir;
}

void UpdateNeck(SnakeRec& body) {
  const Point neck = Stepped(body.Head(), Reverse(body.Dir));
  body.Seg(0) = {neck.x, neck.y, Joined(body.Seg(0).Dir, body.Dir)};
}

/// Moves every cell, and with it the corner that it shows, one place down the body. The cell ahead
/// is straightened before its own turn comes, so that two corners in a row stay two corners.
void Shift(SnakeRec& body) {
  for (int i = std::min<int>(body.Length, kLastSeg); i >= 1; --i) {
    SegRec& ahead = body.Seg(i - 1);
    ahead.Dir = Straightened(ahead.Dir);
    body.Seg(i) = {ahead.X, ahead.Y, Joined(body.Seg(i).Dir, ahead.Dir)};
  }
}

}  // namespace

void TurnPlayer(State& state) {
  SnakeRec& player = state.Snakes(kPlayer);
  const bool reversal = IsDirection(player.NextDir) && player.Dir == Reverse(player.NextDir);
  if (!reversal) player.Dir = player.NextDir;
}

void MoveHead(State& state, int snake) {
  SnakeRec& mover = state.Snakes(snake);
  const Point head = Stepped(mover.Head(), mover.Dir);
  mover.X = head.x;
  mover.Y = head.y;
}

void AIStep(Game& game, int snake) {
  State& state = game.state;
  SnakeRec& mover = state.Snakes(snake);
  if (state.shell.WaitingForStart) {
    mover.Dir = Dir::kNone;
    return;
  }
  const Dir wanted = game.drivers.Choose(state, snake);
  if (wanted != Dir::kNone) mover.Dir = wanted;
  MoveHead(state, snake);
}

void BodyUpdate(State& state, int snake) {
  SnakeRec& body = state.Snakes(snake);
  UpdateNeck(body);
  Shift(body);
  if (body.Seg.Holds(body.Length)) body.Tail = body.Seg(body.Length);
}

void ApplyGrowth(State& state) {
  for (int s = 1; s <= SnakesInPlay(state); ++s) {
    SnakeRec& body = state.Snakes(s);
    if (body.Grow <= 0) continue;
    ++body.Length;
    --body.Grow;
  }
}

void CapLengths(State& state) {
  for (SnakeRec& body : state.Snakes) body.Length = std::min<int>(body.Length, kMaxLength);
}

}  // namespace coilrun
