#pragma once

#include <string>

#include "model/state.h"

namespace coilrun {

inline constexpr int kOptionsLines = 14;

/// Where line 1 to 14 of the options page stands.
Point OptionsLineAt(int line);
/// Label and value of line 1 to 14 as they stand now.
std::string OptionsLineText(const State& state, int line);

/// Name and author of a model pack; "" for a number that stands for none.
std::string ModelText(const State& state, int model);
/// "yes" or "no".
std::string_view YesNoText(bool value);

}  // namespace coilrun
