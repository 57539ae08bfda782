#pragma once

#include "menus/page.h"

namespace coilrun {

/// The fourteen options.
const Lines& OptionsLines();

/// One pass of the options page: draws it and applies the pending action to the line under the
/// cursor.
void OptionsPage(MenuContext& menus);

}  // namespace coilrun
