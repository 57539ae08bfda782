#pragma once

#include "model/state.h"

namespace coilrun {

/// The model of a player who has chosen none.
inline constexpr int kDefaultModel = 1;

/// The pack that shows a snake of this model: the first one where the number has no pack.
inline int ShownModel(const State& state, int model) {
  const bool hasPack = 0 <= model && model <= state.LastModel;
  return hasPack || state.LastModel < 0 ? model : 0;
}

}  // namespace coilrun
