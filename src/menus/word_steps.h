#pragma once

#include "model/words.h"

namespace coilrun {

/// Moves a value forwards or back in the list of its words, wrapping around at the ends.
template <typename Enum>
void StepWord(Enum& value, int by) {
  const int count = static_cast<int>(kWords<Enum>.size());
  value = static_cast<Enum>((static_cast<int>(value) + by + count) % count);
}

}  // namespace coilrun
