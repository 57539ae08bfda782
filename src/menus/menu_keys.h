#pragma once

#include "menus/context.h"

namespace coilrun {

/// A key while the menus are shown.
void MenuKey(MenuContext& menus, int key);
/// Escape on a page beside the main one; false where there is nothing to leave.
bool LeavePage(MenuContext& menus);

}  // namespace coilrun
