#pragma once

#include "menus/page.h"

namespace coilrun {

/// The choice of the next game, and its start.
Lines MatchLines(MenuContext& menus);
/// Draws the chosen level: its picture, and what it cannot offer.
void DrawMatchLevel(MenuContext& menus);

/// Reads the level folder again; if the chosen level is gone, the first one takes its place.
void LookAtLevels(MenuContext& menus);
/// Chooses what the page shows first: the command line's mode and the first level.
void ChooseFirstMatch(State& state, LevelChoice& levels);

}  // namespace coilrun
