#pragma once

#include <string_view>

#include "shell/shell.h"

namespace coilrun {

/// Whether typing edits the name of the high score that was just made.
bool EditsScoreName(const State& state);
/// Adds to that name; the first character takes the place of "Unknown".
void TypeScoreName(State& state, std::string_view typed);
/// Takes its last character away.
void ShortenScoreName(State& state);
/// Stores the name in the table and as the player's own. An empty one stays "Unknown".
void StoreScoreName(Shell& shell);

}  // namespace coilrun
