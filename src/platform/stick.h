#pragma once

#include <optional>

#include "platform/pad_codes.h"

namespace coilrun {

/// Turns a controller's stick into one direction at a time: the one that it leans towards most.
class Stick {
 public:
  /// Takes the lean (-32768 to 32767, y downwards) and returns the direction, or nothing. A
  /// direction is released nearer to the middle than it is taken, so that a trembling hand steers
  /// steadily.
  std::optional<PadDirection> Lean(int x, int y);

 private:
  std::optional<PadDirection> held_;
};

}  // namespace coilrun
