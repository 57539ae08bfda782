#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/state.h"

namespace coilrun {

/// Writes the field that a trace line shows under this name ("Snakes.1.Seg.3.X"), in live slots
/// only. Texts are UTF-8. Returns what is wrong when there is no such field or the value does not
/// fit it; the state then stays as it was.
std::optional<std::string> SetField(State& state, std::string_view name, std::string_view value);

}  // namespace coilrun
