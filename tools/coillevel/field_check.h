#pragma once

#include <map>
#include <string>
#include <vector>

#include "content/level_format.h"
#include "finding.h"
#include "model/state.h"

namespace coilrun {

/// Where a snake's start stands in the file.
struct StartLine {
  int line = 0;
  std::string name;  ///< in words
};

/// What the lines of a level file say, for findings to point at.
struct LevelLines {
  std::map<int, StartLine> starts;  ///< by number of the snake
  std::map<LevelKey, int> keys;     ///< where a key was read last
};

/// What awaits the snakes of a loaded level: starts that leave no room, items that nobody can reach
/// alive, requirements that cannot be met.
std::vector<Finding> CheckField(const State& level, const LevelLines& lines);

}  // namespace coilrun
