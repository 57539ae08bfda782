#pragma once

#include <string>

#include "model/words.h"

namespace coilrun {

/// The character of a key, in Windows-1252, or nothing for a key without one.
std::string ScanToChar(int scanCode, bool shift, KeyboardLayout layout);

}  // namespace coilrun
