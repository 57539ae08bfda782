#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/state.h"
#include "ports/files.h"

namespace coilrun {

/// What can be told about a level before it is played.
struct LevelOutline {
  std::string file;  ///< its name in the lvl folder
  std::string title;
  int starts = 1;                 ///< how many snakes have a start, 1 to 16
  std::optional<int> matchLimit;  ///< the frags or length that it suggests
};

/// The files in the lvl folder, with numbers in their names in order: lvl2.dat before lvl10.dat.
std::vector<std::string> LevelFiles(const Files& files);

/// A level as it would begin, in a separate state; nothing when the game would not load it.
/// Archives that it requires stay closed. Neither the game nor its dice are affected.
std::unique_ptr<State> PeekAtLevel(Files& files, const std::string& file);

std::optional<LevelOutline> OutlineOf(Files& files, const std::string& file);

/// The order of `LevelFiles`, whatever the letter case.
bool ComesBefore(std::string_view a, std::string_view b);

/// The key for the limit of a match; levels load with any value of it.
inline constexpr std::string_view kMatchLimitKey = "MatchLimit=";

/// The value of a level's last "MatchLimit=" line; nothing when there is none, or when it is not a
/// whole number from 5 to 200.
std::optional<int> MatchLimitOf(std::string_view level);

}  // namespace coilrun
