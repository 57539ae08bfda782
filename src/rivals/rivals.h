#pragma once

#include "game/driver.h"

namespace coilrun {

/// Deals the kinds of a list out in turn, from snake `first` on.
Drivers MakeDrivers(const RivalList& list, int first = 2);

}  // namespace coilrun
