#pragma once

#include <optional>

#include "platform/pad_codes.h"

namespace coilrun {

/// Turns a controller's stick into one direction at a time: the one that it leans to most.
class Stick {
 public:
  /// Takes the lean (-32768 to 32767, y downwards) and gives the direction, or nothing. It is let
  /// go nearer to the middle than it was taken, so a trembling hand steers steadily.
  std::optional<PadDirection> Lean(int x, int y);

 private:
  std::optional<PadDirection> held_;
};

}  // namespace coilrun
