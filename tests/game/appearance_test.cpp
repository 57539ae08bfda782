#include "game/appearance.h"

#include "field.h"

namespace coilrun {
namespace {

TEST(DrawAppearances, AbsentItemsMoveEveryTimeAndComeBackByTheirRates) {
  struct Row {
    ItemKind kind;
    bool hides;
    double rate;
    int moves, returns;
  };
  for (const auto& [kind, hides, rate, moves, returns] :
       std::vector<Row>{{ItemKind::kBlue, false, 1, 1, 0},
                        {ItemKind::kBlack, true, 1, 0, 0},
                        {ItemKind::kPower, true, 1, 1, 1},
                        {ItemKind::kPower, true, 1e9, 1, 0},
                        {ItemKind::kYellow, false, 1, 0, 0}}) {
    Field field;
    field.state.level.HideCollected = hides;
    field.state.level.blueRate = rate;
    field.state.level.powerRate = rate;
    ItemRec& item = field.Item(kind, {-7, -7});
    item.Present = false;
    DrawAppearances(field.state);
    EXPECT_EQ(item.X != -7, moves == 1);
    EXPECT_EQ(item.Present, returns == 1);
  }
}

}  // namespace
}  // namespace coilrun
