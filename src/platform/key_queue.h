#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <vector>

#include "ports/key_source.h"

namespace coilrun {

enum class KeyHolder : std::uint8_t { kKeyboard = 1, kButtons = 2, kStick = 4 };

/// Key changes on their way to the game. A key held by several devices is up when all have let go.
class KeyQueue {
 public:
  void Press(int code, KeyHolder holder);
  void Release(int code, KeyHolder holder);
  void ReleaseAll(KeyHolder holder);
  void ReleaseAll();
  /// Moves at most one change of each key into the snapshot.
  void ReadKeys(KeySnapshot& keys);

 private:
  void Hold(int code, std::uint8_t holders);

  std::array<std::uint8_t, 256> holders_{};
  std::array<std::uint8_t, 256> shown_{};
  /// Changes not yet shown, per key; they alternate, so their number is enough.
  std::array<std::uint8_t, 256> pending_{};
};

}  // namespace coilrun
