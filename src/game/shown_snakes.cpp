#include "game/shown_snakes.h"

#include "game/game.h"
#include "model/feed.h"

namespace coilrun {
namespace {

/// With fewer seconds left an immortal snake stays hidden.
constexpr int kBlinkingSeconds = 3;

/// Ends an immortality that has run out and says whether the shared blink shows the snake.
bool BlinkShows(State& state, SnakeRec& snake) {
  if (snake.ImmortalSecs <= 0) {
    snake.Immortal = false;
    MessagePrint(state, snake.Name + " is no longer immortal!");
  }
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
