#pragma once

#include "menus/context.h"

namespace coilrun {

/// One pass of the main page.
void MainPage(MenuContext& menus);
/// A key on the main page; Enter carries out the entry under the cursor.
void MainPageKey(MenuContext& menus, int key);
/// Number of the entry at a place of the screen; 0 for none.
int MainEntryAt(Point place);

}  // namespace coilrun
