#include "game/eating.h"

#include <array>

#include "game/item_effects.h"
#include "game/slots.h"

namespace coilrun {
namespace {

constexpr Reach kWideReach{-16, 16, -16, 16};
constexpr Reach kRedReach{-16, 12, -12, 12};

struct EatingRule {
  ItemKind kind;
  Reach reach;
  void (*eat)(Game& game, int snake, ItemRec& item, int slot);
};
constexpr std::array<EatingRule, kItemKinds> kEatingRules = {
    {{ItemKind::kYellow, kWideReach, EatYellow},
     {ItemKind::kRed, kRedReach, EatRed},
     {ItemKind::kBlue, kWideReach, EatBlue},
     {ItemKind::kBlack, kObstacleReach, EatBlack},
     {ItemKind::kTnt, kObstacleReach, EatTnt},
     {ItemKind::kPower, kObstacleReach, EatPower}}};

void EatKind(Game& game, int snake, const EatingRule& rule) {
  ItemList& items = game.state.Items(rule.kind);
  const Point head = game.state.Snakes(snake).Head();
  int slot = 0;
  for (ItemRec& item : Slots(items.slots, 1, items.count)) {
    ++slot;
    if (item.Present && rule.reach.Touches(head, item.At())) rule.eat(game, snake, item, slot);
  }
}

}  // namespace

Reach EatingReach(ItemKind kind) {
  return kEatingRules.at(static_cast<std::size_t>(kind)).reach;
}

void EatItems(Game& game, int snake) {
  for (const EatingRule& rule : kEatingRules) EatKind(game, snake, rule);
}

}  // namespace coilrun
