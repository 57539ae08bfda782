#pragma once

#include "game/game.h"

namespace coilrun {

/// Lets a snake eat every item that its head reaches, with all that follows.
void EatItems(Game& game, int snake);

}  // namespace coilrun
