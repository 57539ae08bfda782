#include "game/turn_queue.h"

#include <algorithm>

#include "game/geometry.h"

namespace coilrun {
namespace {

/// Whether the next step will take a direction that was asked for.
bool NextDirWaits(const SnakeRec& snake) {
  return snake.NextDir != Dir::kNone && snake.NextDir != snake.Dir &&
         snake.NextDir != Reverse(snake.Dir);
}

/// The presses of one person and the snake that they steer.
struct Presses {
  SnakeRec& snake;
  TurnQueue& queue;

  bool Wait() const { return queue.count > 0 || NextDirWaits(snake); }
  Dir LastAsked() const {
    if (queue.count > 0) return queue.turns.at(queue.count - 1);
    return NextDirWaits(snake) ? snake.NextDir : snake.Dir;
  }
  void TakeBackNewest() const {
    if (queue.count > 0) {
      --queue.count;
    } else {
      snake.NextDir = snake.Dir;
    }
  }
  void Add(Dir press) const {
    if (!Wait()) {
      snake.NextDir = press;
    } else if (queue.count < TurnQueue::kMost) {
      queue.turns.at(queue.count++) = press;
    }
  }
};

}  // namespace

void AskTurn(State& state, int person, Dir press) {
  SnakeRec& snake = state.Snakes(person);
  if (state.more.Turns == TurnsMode::kLast) {
    snake.NextDir = press;
    return;
  }
  const Presses presses{snake, state.People(person).queue};
  while (press == Reverse(presses.LastAsked())) {
    if (!presses.Wait()) return;
    presses.TakeBackNewest();
  }
  if (press != presses.LastAsked()) presses.Add(press);
}

void TakeQueuedTurn(State& state, int person) {
  TurnQueue& queue = state.People(person).queue;
  if (queue.count == 0) return;
  state.Snakes(person).NextDir = queue.turns.front();
  std::rotate(queue.turns.begin(), queue.turns.begin() + 1, queue.turns.end());
  --queue.count;
}

}  // namespace coilrun
