#pragma once

#include <algorithm>

#include "game/game_host.h"
#include "model/state.h"

namespace coilrun {

/// What a rule works on: the state, and the host for all that is no rule.
struct Game {
  State& state;
  GameHost& host;
};

inline constexpr int kPlayer = 1;

/// Snakes in play, whatever number the state holds: 1 to 16.
inline int SnakesInPlay(const State& state) {
  return std::clamp<int>(state.mode.NumSnakes, 1, kMaxSnakes);
}

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
