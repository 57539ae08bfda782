#pragma once

#include "shell/shell.h"

namespace coilrun {

/// Draws a complete frame, the music check first, and flips it when asked to.
void DrawFrame(Shell& shell, bool flip);
/// The level-start / statistics screen; returns when `ShowLevelScreen` is cleared.
void DrawLevelScreen(Shell& shell);
/// The pause screen; returns when `IsPause` is cleared.
void DrawPauseScreen(Shell& shell);

}  // namespace coilrun
