#pragma once

#include "model/state.h"

namespace coilrun {

/// The model of a player who has chosen none.
inline constexpr int kDefaultModel = 1;

/// The pack that a snake of this model is shown with: a number without a pack shows the first one.
inline int ShownModel(const State& state, int model) {
  const bool hasPack = 0 <= model && model <= state.LastModel;
  return hasPack || state.LastModel < 0 ? model : 0;
}

}  // namespace coilrun
