#pragma once

#include "game/game.h"

namespace coilrun {

/// Steps every AI snake whose timer has fired, and switches the fired AI timers on again.
void StepAiSnakes(Game& game);

bool PlayerStepDue(const State& state);
/// The player's step as far as the move of the head and the time limit; items and walls are drawn
/// next.
void BeginPlayerStep(Game& game);
/// The body follows, and the step timer runs again.
void EndPlayerStep(State& state);

}  // namespace coilrun
