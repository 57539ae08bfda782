#pragma once

#include "menus/page.h"

namespace coilrun {

/// Settings beyond the classic game, and the way to further pages.
Lines MoreLines(MenuContext& menus);
/// The number of the entry that opens a page.
int EntryOf(MenuContext& menus, MorePage page);

}  // namespace coilrun
