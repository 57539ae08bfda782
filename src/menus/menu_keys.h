#pragma once

#include "menus/context.h"

namespace coilrun {

/// Takes a key while the menus are shown.
void MenuKey(MenuContext& menus, int key);
/// Escape on a page other than the main one; false when there is nothing to leave.
bool LeavePage(MenuContext& menus);

}  // namespace coilrun
