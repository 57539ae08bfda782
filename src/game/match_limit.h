#pragma once

namespace coilrun {

/// What wins a match when no limit is given: a length when hunting, otherwise frags.
inline int UsualMatchLimit(bool isHunting) {
  constexpr int kHuntingLength = 30;
  constexpr int kFrags = 120;
  return isHunting ? kHuntingLength : kFrags;
}

}  // namespace coilrun
