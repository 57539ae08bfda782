#pragma once

#include "game/game.h"

namespace coilrun {

enum class DeathCause : std::uint8_t { kWall = 1, kSnake = 2, kEdge = 3 };

/// The whole death of a snake, screens and a possible game over included. `other` is the owner of
/// the body that was hit.
void KillSnake(Game& game, int snake, DeathCause cause, int other = 0);
/// Puts a snake back on its start cell; in single play it costs a life.
void RespawnSnake(State& state, int snake);

}  // namespace coilrun
