#pragma once

#include <string>

#include "model/words.h"

namespace coilrun {

/// What is written on a key, with letters in capitals; "key N" for one without a name.
std::string KeyName(int scanCode, KeyboardLayout layout);

}  // namespace coilrun
