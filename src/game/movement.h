#pragma once

#include "game/game.h"

namespace coilrun {

/// Takes the direction that the player asked for, unless it is the exact reverse.
void TurnPlayer(State& state);
/// Moves a head one step in its direction.
void MoveHead(State& state, int snake);
/// One step of an AI snake's head; until the level has started, the snake stands still.
void AIStep(Game& game, int snake);
/// Makes the body follow its head: once after each step of the head.
void BodyUpdate(State& state, int snake);
/// Pays out one cell of every snake's pending growth: once per pass.
void ApplyGrowth(State& state);
/// Cuts every snake to the length that a body can have: before each `ColChk`.
void CapLengths(State& state);

}  // namespace coilrun
