#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "ports/pointer.h"

namespace coilrun {

/// Non-zero while the key with that scan code (PC numbering, extended keys + 128) is held.
using KeySnapshot = std::array<std::uint8_t, 256>;

enum class WindowEvent { kFocusLost, kFocusGained, kClose, kToggleFullScreen };

/// Is told at once when something happens to the window. May throw `Terminate`.
class WindowListener {
 public:
  virtual ~WindowListener() = default;

  virtual void OnWindowEvent(WindowEvent event) = 0;
};

/// The player's hands: a keyboard, a pointer and a window, or a script.
class KeySource {
 public:
  virtual ~KeySource() = default;

  /// Takes in what has happened since the last call, in order, and tells the listener of window
  /// events; called once at the start of every yield (a script runs the commands that are due). May
  /// throw `Terminate`.
  virtual void Gather(WindowListener& listener) = 0;
  /// Keeps the window responsive while the program is busy, without taking anything in.
  virtual void Serve() = 0;
  /// Brings the snapshot up to date with at most one change per key, so that a short tap is seen
  /// first down and then up.
  virtual void ReadKeys(KeySnapshot& keys) = 0;
  /// Takes the oldest thing that the pointer did and that has not been taken yet.
  virtual std::optional<PointerEvent> NextPointerEvent() = 0;
};

}  // namespace coilrun
