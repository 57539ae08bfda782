#pragma once

#include <vector>

#include "finding.h"
#include "model/state.h"

namespace coilrun {

/// Names what stands, or what a spawn point would put, behind the texts over the field: the status
/// line and the messages below it, the item panel, the frags.
std::vector<Finding> CheckBands(const State& level);

}  // namespace coilrun
