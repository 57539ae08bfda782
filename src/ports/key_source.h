#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace coilrun {

/// Non-zero while the key with that scan code (PC numbering, extended keys + 128) is held.
using KeySnapshot = std::array<std::uint8_t, 256>;

enum class WindowEvent { kFocusLost, kFocusGained, kClose, kToggleFullScreen };

/// The player's hands: a keyboard and a window, or a script.
class KeySource {
 public:
  virtual ~KeySource() = default;

  /// Gathers what has happened since the last call; called once at the start of every yield. May
  /// throw `Terminate`.
  virtual void Gather() = 0;
  /// The next thing that happened to the window, oldest first.
  virtual std::optional<WindowEvent> NextEvent() = 0;
  /// Brings the snapshot up to date, with at most one change of each key, so that a short tap is
  /// seen down and then up.
  virtual void ReadKeys(KeySnapshot& keys) = 0;
};

}  // namespace coilrun
