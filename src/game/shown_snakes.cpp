#include "game/shown_snakes.h"

#include "game/game.h"
#include "model/feed.h"

namespace coilrun {
namespace {

/// With fewer seconds left, an immortal snake stays hidden.
constexpr int kBlinkingSeconds = 3;

void EndIfSpent(State& state, SnakeRec& snake) {
  if (!snake.Immortal || snake.ImmortalSecs > 0) return;
  snake.Immortal = false;
  MessagePrint(state, snake.Name + " is no longer immortal!");
}

/// Ends an immortality that has run out, and returns whether the shared blink shows the snake.
bool BlinkShows(State& state, SnakeRec& snake) {
  EndIfSpent(state, snake);
  bool& blink = state.shell.ImmortalBlink;
  const bool shown = !blink;
  if (shown) {
    blink = true;
  } else if (snake.ImmortalSecs >= kBlinkingSeconds) {
    blink = false;
  }
  return shown;
}

}  // namespace

void PlaceWaitingSnakes(State& state) {
  for (int s = 1; s <= SnakesInPlay(state); ++s) {
    SnakeRec& snake = state.Snakes(s);
    if (snake.Dir == Dir::kNone || state.shell.WaitingForStart) PutOnStart(snake);
  }
}

void EndSpentImmortality(State& state) {
  for (int s = 1; s <= SnakesInPlay(state); ++s) EndIfSpent(state, state.Snakes(s));
}

SnakesShown SnakesShownInLoop(State& state) {
  SnakesShown shown;
  for (int s = 1; s <= SnakesInPlay(state); ++s) {
    SnakeRec& snake = state.Snakes(s);
    if (!snake.Immortal && state.shell.WaitingForStart) break;
    shown(s) = !snake.Immortal || BlinkShows(state, snake);
  }
  return shown;
}

SnakesShown SnakesShownInFrame(State& state) {
  SnakesShown shown;
  for (int s = 1; s <= SnakesInPlay(state); ++s) {
    SnakeRec& snake = state.Snakes(s);
    shown(s) = snake.Immortal ? BlinkShows(state, snake) : !state.shell.WaitingForStart;
  }
  return shown;
}

}  // namespace coilrun
