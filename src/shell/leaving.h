#pragma once

#include "shell/shell.h"

namespace coilrun {

/// Unloads the window: saves the settings and leaves the program.
[[noreturn]] void UnloadWindow(Shell& shell, int exitCode = 0);
/// Leaves the game for good: gives the screen back, deletes what was unpacked, saves, ends.
[[noreturn]] void ExitGame(Shell& shell);
/// Leaves while the program is still loading: deletes what was unpacked and ends.
[[noreturn]] void AbandonStartUp(Shell& shell, int exitCode = 0);

}  // namespace coilrun
