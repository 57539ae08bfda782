#include "platform/key_queue.h"

namespace coilrun {
namespace {

/// How many changes of a key may wait for the game (five taps) before further taps are dropped.
constexpr std::uint8_t kMostPending = 10;

bool IsCode(int code) {
  return code > 0 && code < 256;
}

}  // namespace

void KeyQueue::Hold(std::size_t code, std::uint8_t holders) {
  const bool wasDown = holders_[code] != 0;
  holders_[code] = holders;
  if (wasDown == (holders != 0)) return;
  // Beyond that, the last two cancel each other out.
  pending_[code] = static_cast<std::uint8_t>(pending_[code] < kMostPending ? pending_[code] + 1
                                                                           : pending_[code] - 1);
}

void KeyQueue::Press(int code, KeyHolder holder) {
  if (!IsCode(code)) return;
  const auto index = static_cast<std::size_t>(code);
  Hold(index, static_cast<std::uint8_t>(holders_[index] | static_cast<unsigned>(holder)));
}

void KeyQueue::Release(int code, KeyHolder holder) {
  if (!IsCode(code)) return;
  const auto index = static_cast<std::size_t>(code);
  Hold(index, static_cast<std::uint8_t>(holders_[index] & ~static_cast<unsigned>(holder)));
}

void KeyQueue::ReleaseAll(KeyHolder holder) {
  for (int code = 1; code < 256; ++code) Release(code, holder);
}

void KeyQueue::ReleaseAll() {
  for (std::size_t code = 0; code < holders_.size(); ++code) Hold(code, 0);
}

void KeyQueue::ReadKeys(KeySnapshot& keys) {
  for (std::size_t code = 0; code < keys.size(); ++code) {
    if (pending_[code] > 0) {
      --pending_[code];
      down_[code] = !down_[code];
    }
    keys[code] = down_[code] ? 0x80 : 0;
  }
}

}  // namespace coilrun
