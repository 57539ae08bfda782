#pragma once

#include "model/state.h"

namespace coilrun {

/// What wins a match that names no limit: a length when hunting, else frags.
inline int UsualMatchLimit(const ModeState& mode) {
  constexpr int kHuntingLength = 30;
  constexpr int kFrags = 120;
  return mode.HuntingMode ? kHuntingLength : kFrags;
}

}  // namespace coilrun
