#pragma once

#include <string>
#include <string_view>

#include "shell/shell.h"

namespace coilrun {

/// The start-up sequence: settings, level folder, switches, first flags; then the game until it is
/// left.
void StartUp(Shell& shell, std::string_view version, const std::string& commandLine);

}  // namespace coilrun
