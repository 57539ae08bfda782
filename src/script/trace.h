#pragma once

#include <cstdint>
#include <string>

#include "model/state.h"

namespace coilrun {

/// What a trace line reports that is not in the state.
struct TraceMoment {
  std::int64_t now = 0;      ///< microseconds since the process started
  double musicPosition = 0;  ///< seconds into the music file
};

/// The state as one line of JSON, in UTF-8, without a line break.
std::string TraceLine(const State& state, const TraceMoment& moment);

}  // namespace coilrun
