#include "game/walls.h"

#include <string_view>

#include "game/death.h"
#include "game/geometry.h"
#include "game/slots.h"

namespace coilrun {
namespace {

constexpr std::string_view kExplosionSound = "\\snd\\explode.wav";

/// The check of one snake at the place where it stands.
struct Blaster {
  Game& game;
  int snake;
  int& blasts;

  SnakeRec& Who() const { return game.state.Snakes(snake); }
  bool Touches(Point obstacle) const { return kObstacleReach.Touches(Who().Head(), obstacle); }

  /// Meets a standing obstacle that TNT can blow; false when the snake dies on it.
  bool Meet(bool& present) const {
    if (Who().TNT < 1) {
      KillSnake(game, snake, DeathCause::kWall);
      return false;
    }
    present = false;
    game.host.PlayEffect(kExplosionSound, snake);
    if (++blasts == kBlastsPerCharge) SpendCharge();
    return true;
  }

  void SpendCharge() const {
    --Who().TNT;
    blasts = 0;
  }
};

void CheckWalls(const Blaster& blaster) {
  State& state = blaster.game.state;
  for (WallRec& wall : Slots(state.Walls, 1, state.numWalls)) {
    if (wall.Present && blaster.Touches(wall.At()) && !blaster.Meet(wall.Present)) return;
  }
}

void CheckUserWalls(const Blaster& blaster) {
  State& state = blaster.game.state;
  for (UserItemRec& item : Slots(state.UserItems, 1, state.numUserItems)) {
    const bool met = item.Present && blaster.Touches(item.At()) && IsDestructible(item);
    if (met && !blaster.Meet(item.Present)) return;
  }
}

/// These kill whether they are shown or not, and whatever the snake carries.
void CheckHardUserWalls(const Blaster& blaster) {
  State& state = blaster.game.state;
  for (const UserItemRec& item : Slots(state.UserItems, 1, state.numUserItems)) {
    if (!blaster.Touches(item.At()) || !IsIndestructible(item)) continue;
    KillSnake(blaster.game, blaster.snake, DeathCause::kWall);
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
    const Blaster blaster{game, s, blasts};
    CheckWalls(blaster);
    if (state.level.UserItemsUsed) {
      CheckUserWalls(blaster);
      CheckHardUserWalls(blaster);
    }
    if (blasts == 1) blaster.SpendCharge();
  }
}

}  // namespace coilrun
