#pragma once

#include <memory>
#include <string>
#include <vector>

#include "content/level_list.h"

namespace coilrun {

/// The levels that a match can be played in. They are read when they are first needed.
class LevelChoice {
 public:
  explicit LevelChoice(Files& files) : files_(files) {}

  /// Every level in the lvl folder that loads.
  const std::vector<LevelOutline>& All();
  /// The first of them, without reading the others; nothing when there is none.
  std::optional<LevelOutline> First();
  /// The level in this file; null when it does not load.
  const LevelOutline* Find(const std::string& file);
  /// A level as it would begin, for its picture; null when it does not load.
  const State* FieldOf(const std::string& file);
  /// Makes the next call read the folder again.
  void Forget();

 private:
  Files& files_;
  bool isKnown_ = false;
  std::vector<LevelOutline> all_;
  std::string shown_;
  std::unique_ptr<State> field_;
};

}  // namespace coilrun
