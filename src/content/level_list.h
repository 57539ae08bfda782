#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/state.h"
#include "ports/files.h"

namespace coilrun {

/// What can be told of a level before it is played.
struct LevelOutline {
  std::string file;  ///< its name in the lvl folder
  std::string title;
  int starts = 1;                 ///< of snakes, 1 to 16
  std::optional<int> matchLimit;  ///< frags or length that suit it
};

/// The level files of the lvl folder, numbers in their names in order: lvl2.dat before lvl10.dat.
std::vector<std::string> LevelFiles(const Files& files);

/// A level as it would begin, in a state of its own; nothing when the game would not load it.
/// Archives that it requires stay closed. Neither the game nor its dice notice.
std::unique_ptr<State> PeekAtLevel(Files& files, const std::string& file);

std::optional<LevelOutline> OutlineOf(Files& files, const std::string& file);

/// Names in the order of `LevelFiles`, whatever their letter case.
bool ComesBefore(std::string_view a, std::string_view b);

/// The key of a match's limit; levels load with any value of it.
inline constexpr std::string_view kMatchLimitKey = "MatchLimit=";

/// The value of a level's last "MatchLimit=" line; nothing without one, or when it is no whole
/// number from 5 to 200.
std::optional<int> MatchLimitOf(std::string_view level);

}  // namespace coilrun
