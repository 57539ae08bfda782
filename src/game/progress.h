#pragma once

#include "game/game.h"

namespace coilrun {

/// Starts a game at the first level.
void StartNewGame(Game& game);
/// True when `snake` ends the level: in single play by the player's counters, in a match by its own
/// frags or length.
bool LevelComplete(const State& state, int snake);
/// The completion of a level: score, bonus, screen, then the next level or the end of the game.
void NextLevel(Game& game);
/// The screen of the time limit and the life that it costs: checked once per player step.
void CheckTimeLimit(Game& game);

}  // namespace coilrun
