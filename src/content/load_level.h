#pragma once

#include <optional>
#include <string>

#include "content/context.h"
#include "content/level_fault.h"

namespace coilrun {

/// Makes a level file (a game path: ".\lvl\lvl1.dat") the level in play: reads it, unpacks what it
/// requires, places the items, loads its pictures, sets up the snakes and readies the level screen.
/// If anything goes wrong, the menus open with a line that names the level, and `NoGameRunning` is
/// set; the result says what is wrong.
std::optional<LevelFault> LoadLevel(const ContentContext& context, const std::string& path);

/// Empties the level, puts the snakes back on their starts and reads the settings again.
void ResetLevelState(const ContentContext& context);

}  // namespace coilrun
