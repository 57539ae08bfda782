#pragma once

#include "shell/shell.h"

namespace coilrun {

/// One pass of the options page: draws it and applies the pending action to the line under the
/// cursor.
void OptionsPage(Shell& shell);

}  // namespace coilrun
