#pragma once

#include <map>
#include <utility>
#include <vector>

#include "finding.h"
#include "model/words.h"

namespace coilrun {

/// The walls of a map, seen as pictures that should join.
class WallGaps {
 public:
  void Put(int column, int row, WallKind kind, char code) { walls_[{row, column}] = {kind, code}; }
  /// Walls beside a "+" whose pictures end before it.
  std::vector<Finding> Find() const;

 private:
  struct Wall {
    WallKind kind;
    char code;
  };

  std::map<std::pair<int, int>, Wall> walls_;  ///< by row and column
};

}  // namespace coilrun
