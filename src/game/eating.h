#pragma once

#include "game/game.h"
#include "game/geometry.h"

namespace coilrun {

/// How far from an item of this kind a head eats it.
Reach EatingReach(ItemKind kind);

/// Lets a snake eat every item that its head reaches, with all the effects.
void EatItems(Game& game, int snake);

}  // namespace coilrun
