#pragma once

#include <string>
#include <string_view>

namespace coilrun {

/// Why a name with slashes or backslashes must not be unpacked; empty for a harmless one.
std::string NameProblem(std::string_view name);

}  // namespace coilrun
