#pragma once

#include <algorithm>
#include <cstddef>
#include <span>

namespace coilrun {

/// The slots `first` to `last` of a table, as far as the table goes; none when `last` is less.
template <typename AnyTable>
auto Slots(AnyTable& table, int first, int last) {
  const int count = std::max(std::min(last, AnyTable::kLast) - first + 1, 0);
  return std::span(table.begin(), table.end())
      .subspan(static_cast<std::size_t>(first - AnyTable::kFirst), static_cast<std::size_t>(count));
}

}  // namespace coilrun
