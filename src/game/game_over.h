#pragma once

#include "game/game.h"

namespace coilrun {

inline constexpr int kLivesOfAGame = 3;

/// Runs the game-over screen when the player has no life left.
void CheckGameOver(Game& game);
/// Ends a game that was played through: the high-score entry and the resets of a game over,
/// without a screen; menus and no game from here on.
void FinishGame(Game& game);
/// True when some place of the high-score table holds less than the player's total.
bool BeatsAHighScore(const State& state);

}  // namespace coilrun
