#include "game/death.h"

#include "game/death_messages.h"
#include "game/game_over.h"
#include "game/waiting.h"
#include "model/feed.h"
#include "ports/scan_codes.h"

namespace coilrun {
namespace {

constexpr std::string_view kDeathSound = "\\snd\\wall.wav";

void LoseLifeScreen(Game& game) {
  game.state.shell.WaitingAfterDeath = true;
  SetCenterLine(game.state, 0, "Uh - You loose a live...", 215);
  SetCenterLine(game.state, 1, "-Press Enter-", 230);
  FrameCenterLines(game.state);
  WaitForKey(game, kKeyEnter);
  ClearCenterLines(game.state);
}

void StandAtStart(State& state, int snake) {
  SnakeRec& body = state.Snakes(snake);
  PutOnStart(body);
  body.Dir = Dir::kNone;
  body.NextDir = Dir::kNone;
  body.Tail.Dir = Dir::kNone;
  body.Seg(1).Dir = Dir::kNone;
  body.Immortal = false;
  body.ImmortalSecs = 0;
  state.settings.SpeedGain = 0;
  state.timers.SetInterval(StepTimer(state, snake), body.BaseInterval);
}

void LoseLife(State& state, SnakeRec& body) {
  if (body.Score < 0) body.Score = 0;
  --body.Lives;
  state.level.ElapsedSecs = 0;
}

void ClearItemCounts(SnakeRec& body) {
  body.YellowEaten = 0;
  body.RedEaten = 0;
  body.BlueEaten = 0;
  body.BlackEaten = 0;
  body.TNT = 0;
}

}  // namespace

void KillSnake(Game& game, int snake, DeathCause cause, int other) {
  State& state = game.state;
  ++state.Snakes(snake).Deaths;
  game.host.PlayEffect(kDeathSound, snake);
  const int roll = state.Rnd.Below(3) + 1;
  ReseedFromClock(state);
  if (IsMultiplayer(state.mode.GameMode)) {
    MessagePrint(state, DeathMessage(state.Snakes(snake), cause, state.Snakes(other), roll));
  } else {
    game.host.Yield();
  }
  if (snake == kPlayer) LoseLifeScreen(game);

  game.host.LoadSettings();
  RespawnSnake(state, snake);
  if (state.level.HideCollected) RestoreCollectedItems(state);
  ResetSpawnPoints(state);
  state.shell.WaitingAfterDeath = false;
  if (snake == kPlayer) CheckGameOver(game);
}

void RespawnSnake(State& state, int snake) {
  SnakeRec& body = state.Snakes(snake);
  ResetSnakeBody(state, snake);
  if (state.People.Holds(snake)) state.People(snake).queue = {};
  StandAtStart(state, snake);
  if (IsMultiplayer(state.mode.GameMode)) {
    ClearItemCounts(body);
  } else {
    LoseLife(state, body);
  }
}

}  // namespace coilrun
