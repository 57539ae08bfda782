#pragma once

#include <string>
#include <string_view>

namespace coilrun {

/// The character of a key, in Windows-1252, or nothing for a key without one. `layout` is "DE", or
/// "US" for anything else.
std::string ScanToChar(int scanCode, bool shift, std::string_view layout);

}  // namespace coilrun
