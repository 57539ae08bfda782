#include "band_check.h"

#include <algorithm>
#include <array>
#include <set>

#include "game/slots.h"
#include "model/snakes_in_play.h"

namespace coilrun {
namespace {

struct Band {
  int left;
  int top;
  int right;
  int bottom;
  std::string_view name;
};
constexpr std::array<Band, 4> kBands = {{{20, 20, 620, 38, "the status line"},
                                         {18, 40, 270, 90, "the messages"},
                                         {20, 448, 270, 470, "the panel of items"},
                                         {590, 448, 640, 470, "the frags"}}};

class BandCheck {
 public:
  void Look(Point at, std::string_view thing) {
    for (const Band& band : kBands) {
      const bool covers = at.x < band.right && at.x + kCell > band.left && at.y < band.bottom &&
                          at.y + kCell > band.top;
      // One finding per row and band is enough.
      const int row = std::max((at.y + kCell / 2) / kCell, 1);
      if (covers && told_.emplace(row, band.name).second) {
        findings_.push_back({row, std::string{thing} + " stands behind " + std::string{band.name}});
      }
    }
  }
  std::vector<Finding> Findings() && { return std::move(findings_); }

 private:
  std::set<std::pair<int, std::string_view>> told_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> CheckBands(const State& level) {
  BandCheck check;
  for (const WallRec& wall : Slots(level.Walls, 1, level.numWalls)) check.Look(wall.At(), "a wall");
  for (const UserItemRec& item : Slots(level.UserItems, 1, level.numUserItems)) {
    if (item.Present) check.Look(item.At(), "a user item");
  }
  for (const SpawnRec& point : Slots(level.SpawnPoints, 1, level.numSpawnPoints)) {
    check.Look({point.X, point.Y}, "a spawn point");
  }
  const int starts = std::clamp<int>(level.level.MapSnakeCount, 0, kMaxSnakes);
  for (int snake = 1; snake <= starts; ++snake) {
    check.Look({level.Snakes(snake).StartX, level.Snakes(snake).StartY}, "a start");
  }
  return std::move(check).Findings();
}

}  // namespace coilrun
