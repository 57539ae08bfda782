#include "game/appearance.h"

#include "game/placement.h"

namespace coilrun {
namespace {

/// A roll: a number below `range` that must come out as `hit`.
struct Chance {
  double range;
  int hit;

  bool Roll(Rnd& rnd) const { return rnd.Below(range) == hit; }
};

void RollSlot(State& state, ItemKind kind, int slot, Chance goes, Chance returns) {
  ItemRec& item = state.Items(kind)(slot);
  if (item.Present) {
    if (goes.Roll(state.Rnd)) item.Present = false;
    return;
  }
  item.Present = returns.Roll(state.Rnd);
  if (!PlaceItem(state, kind, slot, false)) item.Present = false;
}

void RollKind(State& state, ItemKind kind, Chance goes, Chance returns) {
  for (int slot = 1; slot <= state.Items(kind).Live(); ++slot) {
    RollSlot(state, kind, slot, goes, returns);
  }
}

}  // namespace

void RollAppearances(State& state) {
  const LevelState& level = state.level;
  if (!level.HideCollected) {
    RollKind(state, ItemKind::kBlue, {40, 1}, {level.blueRate, 1});
    RollKind(state, ItemKind::kBlack, {500, 1}, {30, 1});
  }
  RollKind(state, ItemKind::kTnt, {800, 1}, {1000, 1});
  RollKind(state, ItemKind::kPower, {200, 21}, {level.powerRate, 0});
}

}  // namespace coilrun
