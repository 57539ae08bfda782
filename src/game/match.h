#pragma once

#include "game/game.h"

namespace coilrun {

/// Notes what the command line asks for in every game.
void NoteAskedGame(State& state);
/// Makes the next game the one that the match page describes.
void BeginMatch(State& state);
/// Makes the next game the one that the command line asks for again.
void EndMatch(State& state);

/// Whether the running game is a match from the match page that ends with its level.
bool EndsWithItsLevel(const State& state);
/// Shows the winner and the table, then opens the menus on the match page.
void FinishMatch(Game& game);

}  // namespace coilrun
