#pragma once

#include <string_view>

#include "shell/shell.h"

namespace coilrun {

/// Loads the standard pictures and the model packs; while the program starts, unpacks them first.
void DD_CreateGraphicsFromFile(Shell& shell);
/// Unpacks and loads the standard effects.
void SnCreateSounds(Shell& shell);

/// The application lost the focus: gives up the screen and pauses a game that is being played.
void LoseFocus(Shell& shell);
/// The application has the focus again: takes the screen back and reloads every picture.
void RegainFocus(Shell& shell);

}  // namespace coilrun
