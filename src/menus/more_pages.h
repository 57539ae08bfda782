#pragma once

#include "menus/page.h"

namespace coilrun {

/// Opens one of the pages that are not classic, with the cursor on an entry.
void OpenPage(MenuContext& menus, MorePage page, int cursor = 1);
/// Goes one page back (Escape), to the entry that the page was opened from.
void GoBack(MenuContext& menus);

/// One pass of the open page.
void ShowMorePage(MenuContext& menus);
void MorePageKey(MenuContext& menus, int key);
/// The lines of the open page.
Lines MorePageLines(MenuContext& menus);

}  // namespace coilrun
