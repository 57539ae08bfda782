#pragma once

#include "game/game.h"

namespace coilrun {

/// Kills or blasts at the places where the heads stand now: once a player step, before the
/// player's head moves.
void WallCheck(Game& game);

}  // namespace coilrun
