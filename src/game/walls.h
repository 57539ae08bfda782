#pragma once

#include "game/game.h"

namespace coilrun {

/// How many obstacles one charge blows up in one check.
inline constexpr int kBlastsPerCharge = 2;

/// Kills snakes or blasts walls where the heads stand now: once per player step, before the
/// player's head moves.
void WallCheck(Game& game);

/// User items that TNT blows up like walls.
bool IsDestructible(const UserItemRec& item);
/// User items that kill whatever a snake carries.
bool IsIndestructible(const UserItemRec& item);

}  // namespace coilrun
