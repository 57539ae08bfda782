#pragma once

#include "menus/page.h"

namespace coilrun {

/// Opens a page beside the classic ones with the cursor on an entry.
void OpenPage(MenuContext& menus, MorePage page, int cursor = 1);
/// Escape: one page back, to the entry that the page was opened from.
void GoBack(MenuContext& menus);

/// One pass of the page that is open.
void ShowMorePage(MenuContext& menus);
void MorePageKey(MenuContext& menus, int key);
/// The lines of the page that is open.
Lines MorePageLines(MenuContext& menus);

}  // namespace coilrun
