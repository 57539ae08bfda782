#include "game/eating.h"

#include <array>

#include "game/item_effects.h"
#include "game/slots.h"

namespace coilrun {
namespace {

constexpr Reach kWideReach{-16, 16, -16, 16};
constexpr Reach kRedReach{-16, 12, -12, 12};

struct Meal {
  ItemKind kind;
  Reach reach;
  void (*eat)(Game& game, int snake, ItemRec& item, int slot);
};
constexpr std::array<Meal, kItemKinds> kMeals = {{{ItemKind::kYellow, kWideReach, EatYellow},
                                                  {ItemKind::kRed, kRedReach, EatRed},
                                                  {ItemKind::kBlue, kWideReach, EatBlue},
                                                  {ItemKind::kBlack, kObstacleReach, EatBlack},
                                                  {ItemKind::kTnt, kObstacleReach, EatTnt},
                                                  {ItemKind::kPower, kObstacleReach, EatPower}}};

void EatKind(Game& game, int snake, const Meal& meal) {
  ItemList& items = game.state.Items(meal.kind);
  const Point head = game.state.Snakes(snake).Head();
  int slot = 0;
  for (ItemRec& item : Slots(items.slots, 1, items.count)) {
    ++slot;
    if (item.Present && meal.reach.Touches(head, item.At())) meal.eat(game, snake, item, slot);
  }
}

}  // namespace

Reach MealReach(ItemKind kind) {
  return kMeals.at(static_cast<std::size_t>(kind)).reach;
}

void EatItems(Game& game, int snake) {
  for (const Meal& meal : kMeals) EatKind(game, snake, meal);
}

}  // namespace coilrun
