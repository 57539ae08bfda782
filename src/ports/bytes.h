#pragma once

#include <cstdint>
#include <vector>

namespace coilrun {

/// The contents of a file, or a part of it.
using Bytes = std::vector<std::uint8_t>;

}  // namespace coilrun
