#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "pictures.h"

namespace coilrun {

/// The level as the game would start it, as one JSON object with the names of a trace line; nothing
/// when the game would not load it.
std::optional<std::string> DumpLevel(std::string_view text, const Pictures& pictures);

}  // namespace coilrun
