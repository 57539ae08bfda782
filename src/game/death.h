#pragma once

#include <cstdint>

#include "game/game.h"

namespace coilrun {

enum class DeathCause : std::uint8_t { kWall, kSnake, kEdge };

/// The whole death of a snake, including screens and a possible game over. For `kSnake`, `other` is
/// the owner of the body that was hit, which may be the dying snake itself.
void KillSnake(Game& game, int snake, DeathCause cause, int other);
/// Death by a wall or the edge.
inline void KillSnake(Game& game, int snake, DeathCause cause) {
  KillSnake(game, snake, cause, snake);
}
/// Puts a snake back on its start cell; in single play it costs a life.
void RespawnSnake(State& state, int snake);

}  // namespace coilrun
