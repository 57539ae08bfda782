#include "rivals/appetite.h"

#include "game/eating.h"
#include "game/slots.h"

namespace coilrun {
namespace {

/// What the coloured items are worth in a mode: blue ones bring frags or points, and in hunting
/// every item is worth one cell.
struct Tastes {
  int yellow;
  int red;
  int blue;
};

Tastes TastesOf(const State& state) {
  if (!IsMultiplayer(state.mode.GameMode)) return {1, 3, 6};
  if (state.mode.HuntingMode) return {1, 1, 1};
  return {1, 1, 6};
}

}  // namespace

std::span<const Goal> Appetite::Look(const State& state, int snake) {
  const Tastes tastes = TastesOf(state);
  count_ = 0;
  Add(state, ItemKind::kYellow, tastes.yellow);
  Add(state, ItemKind::kRed, tastes.red);
  Add(state, ItemKind::kBlue, tastes.blue);
  const bool hasWalls = state.numWalls > 0 || state.level.UserItemsUsed;
  if (hasWalls && state.Snakes(snake).TNT < 1) Add(state, ItemKind::kTnt, 1);
  return {goals_.data(), count_};
}

std::span<const Goal> Appetite::Power(const State& state) {
  count_ = 0;
  if (!IsMultiplayer(state.mode.GameMode)) Add(state, ItemKind::kPower, 1);
  return {goals_.data(), count_};
}

void Appetite::Add(const State& state, ItemKind kind, int worth) {
  const ItemList& items = state.Items(kind);
  const Reach reach = EatingReach(kind);
  for (const ItemRec& item : Slots(items.slots, 1, items.count)) {
    if (!item.Present) continue;
    goals_[count_++] = {item.At(), reach, static_cast<std::uint8_t>(worth)};
  }
}

}  // namespace coilrun
