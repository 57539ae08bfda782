#pragma once

#include "menus/context.h"

namespace coilrun {

/// One pass of the main page.
void MainPage(MenuContext& menus);
/// Takes a key on the main page; Enter carries out the entry under the cursor.
void MainPageKey(MenuContext& menus, int key);
/// The number of the entry at a place on the screen; 0 for none.
int MainEntryAt(Point place);

}  // namespace coilrun
