#pragma once

#include <string>

#include "model/words.h"

namespace coilrun {

/// What is written on a key, in capitals for letters; "key N" for one without a name.
std::string KeyName(int scanCode, KeyboardLayout layout);

}  // namespace coilrun
