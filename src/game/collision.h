#pragma once

#include "game/game.h"

namespace coilrun {

/// Field edge, eating, bodies and level completion for every snake: once per pass, after
/// `CapLengths`. Deaths and completions run to their end, waits included, before the next snake's
/// turn.
void ColChk(Game& game);

}  // namespace coilrun
