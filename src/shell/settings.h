#pragma once

#include <string_view>

#include "model/state.h"
#include "ports/settings_store.h"

namespace coilrun {

/// Reads every setting and the high-score table from the store. A missing value takes its default;
/// one that cannot be converted leaves its field as it is. In the multiplayer modes the speed
/// settings are fixed.
void LoadSettings(State& state, SettingsStore& store);
void LoadHiScores(State& state, SettingsStore& store);
/// Writes them all back and saves the store; false when it cannot be written.
bool SaveSettings(const State& state, SettingsStore& store);

}  // namespace coilrun
