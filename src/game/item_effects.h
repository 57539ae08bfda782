#pragma once

#include "game/game.h"

namespace coilrun {

/// What an eaten item does to the snake, the field and the player's ears. `item` is slot `slot` of
/// its kind's list.
void EatYellow(Game& game, int snake, ItemRec& item, int slot);
void EatRed(Game& game, int snake, ItemRec& item, int slot);
void EatBlue(Game& game, int snake, ItemRec& item, int slot);
void EatBlack(Game& game, int snake, ItemRec& item, int slot);
void EatTnt(Game& game, int snake, ItemRec& item, int slot);
/// Power works only in single play without `GodMode`; otherwise it stays on the field.
void EatPower(Game& game, int snake, ItemRec& item, int slot);

}  // namespace coilrun
