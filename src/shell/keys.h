#pragma once

#include "shell/shell.h"

namespace coilrun {

/// One pass of the keyboard: every key that went down since the last pass fires once, in the order
/// of the scan codes.
void HandleKeys(Shell& shell);

}  // namespace coilrun
