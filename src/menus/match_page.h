#pragma once

#include "menus/page.h"

namespace coilrun {

/// Which game is played next, and its start.
Lines MatchLines(MenuContext& menus);
/// The level under choice: its picture, and what it cannot give.
void DrawMatchLevel(MenuContext& menus);

/// The level folder is looked at anew; a level that is no more there gives way to the first.
void LookAtLevels(MenuContext& menus);
/// What the page shows first: the command line's mode, the first level.
void ChooseFirstMatch(State& state, LevelChoice& levels);

}  // namespace coilrun
