#pragma once

#include "game/game.h"

namespace coilrun {

/// Starts a game at the first level.
void StartNewGame(Game& game);
/// True when `snake` ends the level: in single play by the player's counters, else by its own
/// frags or length.
bool LevelComplete(const State& state, int snake);
/// The completion of a level: score, bonus, screen, then the next level or the end of the game.
void NextLevel(Game& game);
/// Once a player step: the time limit's screen, and the life that it costs.
void CheckTimeLimit(Game& game);

}  // namespace coilrun
