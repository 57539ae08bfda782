#pragma once

#include <string>

#include "content/context.h"

namespace coilrun {

/// Makes a level file (a game path: ".\lvl\lvl1.dat") the level in play: reads it, unpacks what it
/// requires, places the items, loads its pictures, sets the snakes up and arms the level screen.
/// Whatever goes wrong ends in the menus with a line that names the level, `NoGameRunning` set.
void LoadLevel(const ContentContext& context, const std::string& path);

/// Empties the level and takes the snakes back to their starts; reads the settings anew.
void ResetLevelState(const ContentContext& context);

}  // namespace coilrun
