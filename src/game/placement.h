#pragma once

#include <vector>

#include "model/state.h"

namespace coilrun {

/// Chooses a place for item `slot` (1 to 300) of a kind: a spawn point of the level if one is free,
/// otherwise a random free spot. `initial` is the placement at the start of a level. Writes the
/// item's position and `SpawnPoint` and the point's `State`, never `Present`. False when the field
/// is full: the item is parked off the screen, and the caller leaves it absent.
bool PlaceItem(State& state, ItemKind kind, int slot, bool initial);

/// Every position where an item may be placed when no spawn point is free.
std::vector<Point> FreeSpots(const State& state);

/// True when no item may be placed at this position (in pixels).
bool IsSpotTaken(const State& state, Point spot);

}  // namespace coilrun
