#pragma once

#include "game/game.h"

namespace coilrun {

inline constexpr int kLivesOfAGame = 3;

/// Runs the game-over screen when the player has no lives left.
void CheckGameOver(Game& game);
/// The next game starts at 0 with all lives; until then the menus are open.
void LeaveGame(State& state);
/// Ends a game that was played to its end: the high-score entry and the resets of a game over, but
/// no screen; afterwards the menus are open and no game is running.
void FinishGame(Game& game);
/// True when some place of the high-score table holds less than the player's total.
bool BeatsAHighScore(const State& state);

}  // namespace coilrun
