#pragma once

#include <array>
#include <cstdint>

#include "ports/key_source.h"

namespace coilrun {

enum class KeyHolder : std::uint8_t { kKeyboard = 1, kButtons = 2, kStick = 4 };

/// Key changes on their way to the game. A key held on several devices is up once all have let go;
/// pressing a key that is already down (the keyboard's repetition) changes nothing.
class KeyQueue {
 public:
  /// Codes outside 1 to 255 are ignored.
  void Press(int code, KeyHolder holder);
  void Release(int code, KeyHolder holder);
  void ReleaseAll(KeyHolder holder);
  void ReleaseAll();
  /// Moves at most one change per key into the snapshot.
  void ReadKeys(KeySnapshot& keys);

 private:
  void Hold(std::size_t code, std::uint8_t holders);

  std::array<std::uint8_t, 256> holders_{};
  /// The changes of a key alternate, so their number says it all.
  std::array<std::uint8_t, 256> pending_{};
  std::array<bool, 256> down_{};
};

}  // namespace coilrun
