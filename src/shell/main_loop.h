#pragma once

#include "shell/shell.h"

namespace coilrun {

/// Starts up the machine, loads the pictures and the start level, and runs the main loop until
/// `Running` is cleared.
void RunGame(Shell& shell);

}  // namespace coilrun
