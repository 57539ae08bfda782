#pragma once

#include <string>
#include <vector>

#include "platform/rar/rar_reader.h"

namespace coilrun {

/// What keeps a model pack from showing a whole snake, one line per fault: pictures that are
/// missing, are not bitmaps or have the wrong size. `archive` is the name of the pack's file.
std::vector<std::string> ModelFaults(const std::string& archive, RarReader& reader);

}  // namespace coilrun
