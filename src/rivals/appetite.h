#pragma once

#include <array>
#include <span>

#include "rivals/ground.h"

namespace coilrun {

/// What a snake likes to eat, and how many steps further it would go for it.
class Appetite {
 public:
  /// The items on the field that are worth eating for `snake` in this mode of the game.
  std::span<const Goal> Look(const State& state, int snake);
  /// Atomic power, which nobody gets in a multiplayer game.
  std::span<const Goal> Power(const State& state);

 private:
  void Add(const State& state, ItemKind kind, int worth);

  std::array<Goal, std::size_t{kMaxItems} * kItemKinds> goals_{};
  std::size_t count_ = 0;
};

}  // namespace coilrun
