#include "rivals/rivals.h"

#include <memory>

#include "rivals/clever.h"

namespace coilrun {

Drivers MakeDrivers(const RivalList& list, int first) {
  const auto clever = std::make_shared<CleverDriver>();
  Drivers drivers;
  std::size_t dealt = 0;
  for (int s = first; s <= kMaxSnakes; ++s) {
    const RivalKind kind = list.kinds[dealt++ % list.kinds.size()];
    if (kind != RivalKind::kClassic) drivers.Give(s, clever);
  }
  return drivers;
}

}  // namespace coilrun
