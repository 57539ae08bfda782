#pragma once

#include "game/driver.h"

namespace coilrun {

/// Deals out the kinds of a list in turn, from snake `first` on.
Drivers MakeDrivers(const RivalList& list, int first = 2);

}  // namespace coilrun
