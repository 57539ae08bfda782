#pragma once

#include "game/game.h"

namespace coilrun {

/// Keeps what the command line asks of every game.
void NoteAskedGame(State& state);
/// Makes the next game the one that the match page describes.
void BeginMatch(State& state);
/// The next game is again the one that the command line asks for.
void EndMatch(State& state);

/// Whether a match of the match page is being played that ends with its level.
bool EndsWithItsLevel(const State& state);
/// Shows the winner and the table, then opens the menus on the match page.
void FinishMatch(Game& game);

}  // namespace coilrun
