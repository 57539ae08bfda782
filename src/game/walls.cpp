#include "game/walls.h"

#include <string_view>

#include "game/death.h"
#include "game/geometry.h"
#include "game/slots.h"

namespace coilrun {
namespace {

constexpr std::string_view kExplosionSound = "\\snd\\explode.wav";

/// A snake being checked for walls where it stands.
struct CheckedSnake {
  Game& game;
  int number;
  int& blasts;

  SnakeRec& Body() const { return game.state.Snakes(number); }
  bool Touches(Point obstacle) const { return kObstacleReach.Touches(Body().Head(), obstacle); }

  /// Meets a standing obstacle that TNT can blow up; false when the snake dies on it.
  bool Meet(bool& present) const {
    if (Body().TNT < 1) {
      KillSnake(game, number, DeathCause::kWall);
      return false;
    }
    present = false;
    game.host.PlayEffect(kExplosionSound, number);
    if (++blasts == kBlastsPerCharge) SpendCharge();
    return true;
  }

  void SpendCharge() const {
    --Body().TNT;
    blasts = 0;
  }
};

void CheckWalls(const CheckedSnake& checked) {
  State& state = checked.game.state;
  for (WallRec& wall : Slots(state.Walls, 1, state.numWalls)) {
    if (wall.Present && checked.Touches(wall.At()) && !checked.Meet(wall.Present)) return;
  }
}

void CheckUserWalls(const CheckedSnake& checked) {
  State& state = checked.game.state;
  for (UserItemRec& item : Slots(state.UserItems, 1, state.numUserItems)) {
    const bool met = item.Present && checked.Touches(item.At()) && IsDestructible(item);
    if (met && !checked.Meet(item.Present)) return;
  }
}

/// These kill whether they are shown or not, and whatever the snake carries.
void CheckHardUserWalls(const CheckedSnake& checked) {
  State& state = checked.game.state;
  for (const UserItemRec& item : Slots(state.UserItems, 1, state.numUserItems)) {
    if (!checked.Touches(item.At()) || !IsIndestructible(item)) continue;
    KillSnake(checked.game, checked.number, DeathCause::kWall);
    return;
  }
}

}  // namespace

bool IsDestructible(const UserItemRec& item) {
  return item.Type == UserItemType::kWall || item.Type == UserItemType::kMovingWall;
}

bool IsIndestructible(const UserItemRec& item) {
  return item.Type == UserItemType::kHardWall || item.Type == UserItemType::kMovingHardWall;
}

void WallCheck(Game& game) {
  State& state = game.state;
  if (state.mode.GodMode) return;
  int blasts = 0;
  for (int s = 1; s <= SnakesInPlay(state); ++s) {
    if (state.Snakes(s).Immortal) continue;
    const CheckedSnake checked{game, s, blasts};
    CheckWalls(checked);
    if (state.level.UserItemsUsed) {
      CheckUserWalls(checked);
      CheckHardUserWalls(checked);
    }
    if (blasts == 1) checked.SpendCharge();
  }
}

}  // namespace coilrun
