#pragma once

#include "game/game.h"

namespace coilrun {

/// Obstacles that one charge blows in one check.
inline constexpr int kBlastsPerCharge = 2;

/// Kills or blasts at the places where the heads stand now: once a player step, before the
/// player's head moves.
void WallCheck(Game& game);

/// User items that TNT blows like walls.
bool IsDestructible(const UserItemRec& item);
/// User items that kill whatever a snake carries.
bool IsIndestructible(const UserItemRec& item);

}  // namespace coilrun
