#pragma once

#include <string>

#include "game/game.h"

namespace coilrun {

/// Waits, with the screen kept drawn and the level clock stopped, for the key with this scan code
/// or until the wait is aborted.
void WaitForKey(Game& game, int scanCode);
/// Gives centred text `line` (0 to 15) its place in the font of all messages.
void SetCenterLine(State& state, int line, std::string text, int y);
/// Puts a box of asterisks around the centred texts.
void FrameCenterLines(State& state);

}  // namespace coilrun
