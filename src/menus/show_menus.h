#pragma once

#include "menus/context.h"

namespace coilrun {

/// Runs the menus until `InMenu` is cleared.
void ShowMenus(MenuContext& menus);

}  // namespace coilrun
