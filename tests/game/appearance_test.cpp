#include "game/appearance.h"

#include "field.h"

namespace coilrun {
namespace {

TEST(RollAppearances, AbsentItemsMoveEveryTimeAndComeBackByTheirRates) {
  using Row = std::tuple<ItemKind, bool, double, bool, bool>;
  const Row rows[] = {{ItemKind::kBlue, false, 1, true, false},
                      {ItemKind::kBlack, true, 1, false, false},
                      {ItemKind::kPower, true, 1, true, true},
                      {ItemKind::kPower, true, 1e9, true, false},
                      {ItemKind::kYellow, false, 1, false, false}};
  for (const auto& [kind, hides, rate, moves, returns] : rows) {
    Field field;
    field.state.level.HideCollected = hides;
    field.state.level.blueRate = rate;
    field.state.level.powerRate = rate;
    ItemRec& item = field.Item(kind, {-7, -7});
    item.Present = false;
    RollAppearances(field.state);
    EXPECT_EQ(item.X != -7, moves) << static_cast<int>(kind);
    EXPECT_EQ(item.Present, returns) << static_cast<int>(kind) << ' ' << rate;
  }
}

}  // namespace
}  // namespace coilrun
