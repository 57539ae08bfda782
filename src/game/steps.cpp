#include "game/steps.h"

#include "game/appearance.h"
#include "game/movement.h"
#include "game/progress.h"
#include "game/turn_queue.h"
#include "game/walls.h"

namespace coilrun {

void StepAiSnakes(Game& game) {
  State& state = game.state;
  for (int s = kPlayer + 1; s <= kMaxSnakes; ++s) {
    if (StepTimer(state, s).Enabled) continue;
    if (s <= SnakesInPlay(state)) {
      AIStep(game, s);
      BodyUpdate(state, s);
    }
    state.timers.StartEvenly(StepTimer(state, s));
  }
}

bool PlayerStepDue(const State& state) {
  return !state.timers.iWait(0).Enabled;
}

void BeginPlayerStep(Game& game) {
  RollAppearances(game.state);
  TurnPlayer(game.state);
  WallCheck(game);
  MoveHead(game.state, kPlayer);
  CheckTimeLimit(game);
}

void EndPlayerStep(State& state) {
  BodyUpdate(state, kPlayer);
  TakeQueuedTurn(state, kPlayer);
  state.timers.StartEvenly(StepTimer(state, kPlayer));
}

}  // namespace coilrun
