#pragma once

#include <map>
#include <string>
#include <vector>

#include "content/level_format.h"
#include "finding.h"
#include "model/state.h"

namespace coilrun {

/// Where the file gives a snake's start.
struct StartLine {
  int line = 0;
  std::string name;  ///< in words
};

/// What the lines of a level file say, so that findings can point to them.
struct LevelLines {
  std::map<int, StartLine> starts;  ///< by the number of the snake
  std::map<LevelKey, int> keys;     ///< the line where a key was last read
};

/// What is wrong with the field of a loaded level: starts without room, items that nobody can reach
/// alive, requirements that cannot be met.
std::vector<Finding> CheckField(const State& level, const LevelLines& lines);

}  // namespace coilrun
