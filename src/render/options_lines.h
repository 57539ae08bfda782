#pragma once

#include <string>

#include "model/state.h"

namespace coilrun {

inline constexpr int kOptionsLines = 14;

/// Where line 1 to 14 of the options page stands.
Point OptionsLineAt(int line);
/// Label and value of line 1 to 14 as they stand now.
std::string OptionsLineText(const State& state, int line);

/// The step period that "Global Speed" stands for: the player's own, whatever the level has set.
double ShownGlobalSpeed(const State& state);
/// Name and author of the pack that a model is shown with; "" without any pack.
std::string ModelText(const State& state, int model);
/// "yes" or "no".
std::string_view YesNoText(bool value);

}  // namespace coilrun
