#pragma once

#include <string>

#include "shell/shell.h"

namespace coilrun {

/// Appends a typed character to the hidden command line and carries out the command that it may now
/// hold.
void TypeCheat(Shell& shell, const std::string& typed);

/// "activated" or "deactivated".
const char* OnOffText(bool value);

}  // namespace coilrun
