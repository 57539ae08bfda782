#include "game/appearance.h"

#include "game/placement.h"

namespace coilrun {
namespace {

/// A draw: a number below `range` that must come out as `hit`.
struct Chance {
  double range;
  int hit;

  bool Draw(Rnd& rnd) const { return rnd.Below(range) == hit; }
};

void DrawSlot(State& state, ItemKind kind, int slot, Chance goes, Chance returns) {
  ItemRec& item = state.Items(kind)(slot);
  if (item.Present) {
    if (goes.Draw(state.Rnd)) item.Present = false;
    return;
  }
  item.Present = returns.Draw(state.Rnd);
  if (!PlaceItem(state, kind, slot, false)) item.Present = false;
}

void DrawKind(State& state, ItemKind kind, Chance goes, Chance returns) {
  for (int slot = 1; slot <= state.Items(kind).Live(); ++slot) {
    DrawSlot(state, kind, slot, goes, returns);
  }
}

}  // namespace

void DrawAppearances(State& state) {
  const LevelState& level = state.level;
  if (!level.HideCollected) {
    DrawKind(state, ItemKind::kBlue, {40, 1}, {level.blueRate, 1});
    DrawKind(state, ItemKind::kBlack, {500, 1}, {30, 1});
  }
  DrawKind(state, ItemKind::kTnt, {800, 1}, {1000, 1});
  DrawKind(state, ItemKind::kPower, {200, 21}, {level.powerRate, 0});
}

}  // namespace coilrun
