#pragma once

#include "shell/shell.h"

namespace coilrun {

/// Runs the menus until `InMenu` is cleared.
void ShowMenus(Shell& shell);
/// Enter on the main page: carries out the entry under the cursor.
void MenuSelect(Shell& shell);

}  // namespace coilrun
