#include "game/collision.h"

#include <algorithm>

#include "game/death.h"
#include "game/eating.h"
#include "game/geometry.h"
#include "game/progress.h"
#include "game/slots.h"

namespace coilrun {
namespace {

/// The points and growth that a kill brings on top of the victim's length.
constexpr int kKillBonus = 2;

void CheckEdge(Game& game, int snake) {
  State& state = game.state;
  if (state.mode.GodMode) return;
  SnakeRec& mover = state.Snakes(snake);
  if (mover.Immortal || state.level.hasOpenWalls) {
    mover.X = kAcross.Wrapped(mover.X);
    mover.Y = kDown.Wrapped(mover.Y);
    return;
  }
  if (!InField(mover.Head()) && !state.mode.NoClip) KillSnake(game, snake, DeathCause::kEdge);
}

bool HitsBody(const SnakeRec& mover, const SnakeRec& body) {
  if (mover.Dir == Dir::kNone) return false;
  const Point head = mover.Head();
  const auto deadly = Slots(body.Seg, kFirstDeadlyCell, body.Length);
  return std::any_of(deadly.begin(), deadly.end(), [head](const SegRec& cell) {
    return Overlap(head, {cell.X, cell.Y});
  });
}

/// Rewards a kill after the victim's respawn, and so by the length that the victim has then.
void RewardKill(State& state, int killer, int victim) {
  SnakeRec& winner = state.Snakes(killer);
  const int prize = state.Snakes(victim).Length + kKillBonus;
  ++winner.Frags;
  if (state.mode.HuntingMode) winner.Grow += prize;
  winner.Score += prize;
}

void DieOnBody(Game& game, int snake, int owner) {
  KillSnake(game, snake, DeathCause::kSnake, owner);
  if (!IsMultiplayer(game.state.mode.GameMode)) return;
  if (owner == snake) {
    --game.state.Snakes(snake).Frags;
  } else {
    RewardKill(game.state, owner, snake);
  }
}

void CheckBodies(Game& game, int snake) {
  State& state = game.state;
  if (state.Snakes(snake).Immortal || state.mode.GodMode) return;
  for (int j = 1; j <= SnakesInPlay(state); ++j) {
    if (HitsBody(state.Snakes(snake), state.Snakes(j))) DieOnBody(game, snake, j);
  }
}

}  // namespace

void ColChk(Game& game) {
  for (int s = 1; s <= SnakesInPlay(game.state); ++s) {
    CheckEdge(game, s);
    EatItems(game, s);
    CheckBodies(game, s);
    if (LevelComplete(game.state, s)) NextLevel(game);
  }
}

}  // namespace coilrun
