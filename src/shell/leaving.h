#pragma once

#include "shell/shell.h"

namespace coilrun {

/// Closes the window: saves the settings and leaves the program.
[[noreturn]] void UnloadWindow(Shell& shell, int exitCode = 0);
/// Leaves the game for good: gives up the screen, deletes what was unpacked, saves, and ends.
[[noreturn]] void ExitGame(Shell& shell);
/// Leaves while the program is still loading: deletes what was unpacked and ends.
[[noreturn]] void AbandonStartUp(Shell& shell, int exitCode = 0);

}  // namespace coilrun
