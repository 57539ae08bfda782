#pragma once

#include "game/driver.h"

namespace coilrun {

/// Deals the kinds of a list out in turn, from snake `first` on. `master` has no driver of its own
/// yet and plays as `clever` does.
Drivers MakeDrivers(const RivalList& list, int first = 2);

}  // namespace coilrun
