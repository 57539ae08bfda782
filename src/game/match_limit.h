#pragma once

#include "model/state.h"

namespace coilrun {

/// What wins a match when no limit is given: a length when hunting, otherwise frags.
inline int UsualMatchLimit(const ModeState& mode) {
  constexpr int kHuntingLength = 30;
  constexpr int kFrags = 120;
  return mode.HuntingMode ? kHuntingLength : kFrags;
}

}  // namespace coilrun
