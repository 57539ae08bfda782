#include "model/state.h"

namespace coilrun {

State::State() {
  for (int person = 1; person <= kMaxPeople; ++person) Keys(person) = BuiltInKeys(person);
}

void ReseedFromClock(State& state) {
  state.Rnd.Reseed(state.clockSeed + static_cast<std::uint64_t>(state.timers.now));
}

void ResetSnakeBody(State& state, int snake) {
  SnakeRec& body = state.Snakes(snake);
  for (int i = 1; i <= kLastSeg; ++i) body.Seg(i) = {};
  body.Length = 1;
  body.Grow = 0;
}

void RestoreCollectedItems(State& state) {
  for (const ItemKind kind :
       {ItemKind::kYellow, ItemKind::kRed, ItemKind::kBlue, ItemKind::kBlack}) {
    ItemList& items = state.Items(kind);
    for (int slot = 1; slot <= items.Live(); ++slot) {
      ItemRec& item = items(slot);
      if (!item.Collected) continue;
      item.Present = true;
      item.Collected = false;
    }
  }
}

void ResetSpawnPoints(State& state) {
  for (int point = 1; point <= state.numSpawnPoints; ++point) {
    if (state.SpawnPoints(point).Present) state.SpawnPoints(point).State = {};
  }
}

void ClearCenterLines(State& state) {
  state.CenterLines = {};
}

}  // namespace coilrun
