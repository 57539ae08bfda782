#pragma once

#include "game/driver.h"
#include "game/game_host.h"
#include "model/snakes_in_play.h"
#include "model/state.h"

namespace coilrun {

/// What a rule works on: the state, the host for everything that is not a rule, and who drives the
/// snakes.
struct Game {
  State& state;
  GameHost& host;
  Drivers drivers = {};
};

/// Puts a head on the snake's start cell.
inline void PutOnStart(SnakeRec& snake) {
  snake.X = snake.StartX;
  snake.Y = snake.StartY;
}

/// The step timer of a snake, 1 to 16.
inline Timer& StepTimer(State& state, int snake) {
  return state.timers.iWait(snake - 1);
}

}  // namespace coilrun
