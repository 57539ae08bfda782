#pragma once

#include "content/context.h"

namespace coilrun {

/// Loads the pictures of all user items of the level. False when one cannot be loaded.
bool LoadUserItems(const ContentContext& context);

}  // namespace coilrun
