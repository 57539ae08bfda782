#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace coilrun {

/// The folders and the file name of a game path below the program folder, in Windows-1252. None of
/// them can lead upwards, name a drive or hold a control character.
using GamePath = std::vector<std::string>;

/// Splits what follows the root of a path at separators of both kinds; nothing when a part leads
/// out of the root. One separator at either end is allowed.
std::optional<GamePath> ParseGamePath(std::string_view belowRoot);

}  // namespace coilrun
