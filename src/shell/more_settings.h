#pragma once

#include "model/state.h"
#include "ports/settings_store.h"

namespace coilrun {

/// What the sections [More] and [Keys] hold.
struct MoreSettings {
  MoreState more;
  Table<SteeringKeys, kMaxPeople> keys;
};

/// Reads the sections [More] and [Keys]. A value that cannot be used counts as the built-in one. A
/// classic run keeps all built-in values. The host options of this run override both.
void LoadMoreSettings(State& state, const SettingsStore& store);
/// Stores what differs from `before`, so that only the player's own changes are stored.
void SaveMoreSettings(const State& state, const MoreSettings& before, SettingsStore& store);

/// A person's keys in the shipped settings, whatever the player has stored.
SteeringKeys ShippedKeys(int person, const SettingsStore& store);

}  // namespace coilrun
