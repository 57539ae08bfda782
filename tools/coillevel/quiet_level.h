#pragma once

#include <memory>
#include <string_view>

#include "model/state.h"
#include "pictures.h"

namespace coilrun {

/// What the game's loader makes of a level, without any pictures or files; nothing when it refuses
/// the level. The level's own archives are assumed to hold the pictures that it names.
std::unique_ptr<State> LoadQuietly(std::string_view text, const Pictures& pictures);

}  // namespace coilrun
