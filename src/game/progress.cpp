#include "game/progress.h"

#include <string>

#include "game/death.h"
#include "game/game_over.h"
#include "game/match.h"
#include "game/waiting.h"
#include "model/numbers.h"
#include "model/ranking.h"
#include "ports/files.h"
#include "ports/scan_codes.h"

namespace coilrun {
namespace {

/// A shorter path does not name a level.
constexpr std::size_t kShortestLevelPath = 7;

bool NamesNextLevel(const std::string& path) {
  return path.size() >= kShortestLevelPath && !path.ends_with("END");
}

/// Adds a point for every second that is left; a cheated clock can cost points.
void AddTimeBonus(State& state) {
  if (state.level.Timeout == 0) return;
  const double bonus = state.level.Timeout - state.level.ElapsedSecs;
  SetCenterLine(state, 3, "Time Bonus: " + NumberText(bonus) + " pts", 260);
  Int32& total = state.Snakes(kPlayer).TotalScore;
  if (const auto sum = ToInt32(total + bonus)) total = *sum;
}

void CompletionScreen(Game& game) {
  State& state = game.state;
  state.keys.LastKey = 0;
  SetCenterLine(state, 0, "Next Level!!!", 215);
  SetCenterLine(state, 1, "-Press Enter-", 230);
  AddTimeBonus(state);
  SetCenterLine(state, 2, "Your Score: " + std::to_string(state.Snakes(kPlayer).TotalScore), 245);
  if (BeatsAHighScore(state) && !state.mode.Cheated) {
    SetCenterLine(state, 4, "This is a new High Score!",
                  state.CenterLines(3).Text.empty() ? 260 : 275);
  }
  FrameCenterLines(state);
  WaitForKey(game, kKeyEnter);
  ClearCenterLines(state);
}

void CarryScore(SnakeRec& player) {
  player.TotalScore += player.Score;
  player.Immortal = false;
  player.ImmortalSecs = 0;
}

}  // namespace

void StartNewGame(Game& game) {
  ModeState& mode = game.state.mode;
  mode.GodMode = false;
  mode.NoClip = false;
  mode.Cheated = false;
  EndMatch(game.state);
  game.host.LoadLevel(InProgramFolder("\\lvl\\lvl1.dat"));
}

bool LevelComplete(const State& state, int snake) {
  if (IsMultiplayer(state.mode.GameMode)) {
    return ReachedInMatch(state, snake) >= state.mode.MatchLimit;
  }
  const SnakeRec& player = state.Snakes(kPlayer);
  const LevelState& level = state.level;
  return player.YellowEaten >= level.reqYellow && player.RedEaten >= level.reqRed &&
         player.BlueEaten >= level.reqBlue && player.BlackEaten >= level.reqBlack &&
         player.Score >= level.reqScore;
}

void NextLevel(Game& game) {
  State& state = game.state;
  if (EndsWithItsLevel(state)) return FinishMatch(game);
  state.shell.Running = false;
  CarryScore(state.Snakes(kPlayer));
  CompletionScreen(game);
  state.level.ElapsedSecs = 0;
  for (int s = 1; s <= SnakesInPlay(state); ++s) ResetSnakeBody(state, s);

  const std::string next = state.level.nextLvl;
  if (NamesNextLevel(next)) {
    game.host.LoadLevel(next);
  } else {
    FinishGame(game);
    state.shell.Running = true;
    game.host.RunMenus();
  }
  state.Snakes(kPlayer).Score = 0;
}

void CheckTimeLimit(Game& game) {
  State& state = game.state;
  const LevelState& level = state.level;
  if (state.mode.TimePass || level.Timeout == 0 || level.ElapsedSecs < level.Timeout) return;
  state.shell.WaitingAfterTimeout = true;
  state.overlay = WaitOverlay::kTimeLimit;
  WaitForKey(game, kKeyEnter);
  state.overlay = WaitOverlay::kNone;
  state.shell.WaitingAfterTimeout = false;
  state.shell.WaitingForStart = true;
  RespawnSnake(state, kPlayer);
  state.level.ElapsedSecs = 0;
  CheckGameOver(game);
}

}  // namespace coilrun
