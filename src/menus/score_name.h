#pragma once

#include <string_view>

#include "game/game.h"

namespace coilrun {

/// Whether typing edits the name of the high score that was just made.
bool EditsScoreName(const State& state);
/// Appends to that name; the first character replaces "Unknown".
void TypeScoreName(State& state, std::string_view typed);
/// Removes its last character.
void ShortenScoreName(State& state);
/// Stores the name in the table and as the player's own. An empty one stays "Unknown".
void StoreScoreName(Game& game);

}  // namespace coilrun
