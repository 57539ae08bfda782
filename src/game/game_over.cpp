#include "game/game_over.h"

#include <algorithm>
#include <string>

#include "game/match.h"
#include "game/snake_timers.h"
#include "game/waiting.h"
#include "ports/scan_codes.h"

namespace coilrun {
namespace {

HiScoreEntry* BeatenEntry(State& state) {
  const int total = state.Snakes(kPlayer).TotalScore;
  auto* const found =
      std::find_if(state.HiScore.begin(), state.HiScore.end(),
                   [total](const HiScoreEntry& entry) { return entry.Score < total; });
  return found == state.HiScore.end() ? nullptr : found;
}

/// Points the score page to the new entry, where it asks for a name if there is none.
void ShowEntry(State& state, const HiScoreEntry& entry) {
  if (!state.more.AskName) return;
  state.menus.EnteredPlace = static_cast<int>(&entry - state.HiScore.begin()) + 1;
  state.menus.EditsName = entry.Name == kUnknownName;
}

/// Overwrites the entry; those below it do not move down. The menus will open at the score page.
void StoreHighScore(Game& game, HiScoreEntry& entry) {
  const SnakeRec& player = game.state.Snakes(kPlayer);
  entry.Name = player.Name;
  entry.Score = player.TotalScore;
  game.host.SaveSettings();
  ShowEntry(game.state, entry);
  game.state.menus.ScorePage = 1;
  game.state.shell.InMenu = true;
}

void GameOverScreen(Game& game) {
  State& state = game.state;
  game.host.Yield();
  game.host.RefreshHighScores();
  state.overlay = WaitOverlay::kGameOver;
  SetCenterLine(state, 0, "Game Over", 215);
  SetCenterLine(state, 1, "-Press Enter-", 230);
  SetCenterLine(state, 2, "Your Score: " + std::to_string(state.Snakes(kPlayer).TotalScore), 245);
  if (HiScoreEntry* const beaten = BeatenEntry(state)) {
    if (state.mode.Cheated) {
      SetCenterLine(state, 3, "This would be a new High Score! - But you cheated!", 260);
    } else {
      SetCenterLine(state, 3, "This is a new High Score!", 260);
      StoreHighScore(game, *beaten);
    }
  }
  FrameCenterLines(state);
  WaitForKey(game, kKeyEnter);
  ClearCenterLines(state);
  state.overlay = WaitOverlay::kNone;
}

}  // namespace

void LeaveGame(State& state) {
  SnakeRec& player = state.Snakes(kPlayer);
  player.TotalScore = 0;
  player.Lives = kLivesOfAGame;
  StopSnakeTimers(state);
  EndMatch(state);
  state.shell.NoGameRunning = true;
  // A level that ended before its screen was shown must not keep the menus from taking keys.
  state.shell.LevelIntroPending = false;
  state.shell.ShowLevelScreen = false;
  state.shell.InMenu = true;
}

void CheckGameOver(Game& game) {
  if (game.state.Snakes(kPlayer).Lives >= 0) return;
  GameOverScreen(game);
  LeaveGame(game.state);
}

void FinishGame(Game& game) {
  game.host.RefreshHighScores();
  HiScoreEntry* const beaten = BeatenEntry(game.state);
  if (beaten != nullptr && !game.state.mode.Cheated) StoreHighScore(game, *beaten);
  LeaveGame(game.state);
}

bool BeatsAHighScore(const State& state) {
  const int total = state.Snakes(kPlayer).TotalScore;
  return std::any_of(state.HiScore.begin(), state.HiScore.end(),
                     [total](const HiScoreEntry& entry) { return entry.Score < total; });
}

}  // namespace coilrun
