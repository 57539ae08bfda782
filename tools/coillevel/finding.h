#pragma once

#include <string>

namespace coilrun {

/// Something in a level file that its author should know.
struct Finding {
  int line = 0;
  std::string text;
  bool refused = false;  ///< the game would not load the level
};

}  // namespace coilrun
