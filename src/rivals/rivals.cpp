#include "rivals/rivals.h"

#include <memory>

#include "rivals/clever.h"
#include "rivals/master.h"

namespace coilrun {

Drivers MakeDrivers(const RivalList& list, int first) {
  const auto clever = std::make_shared<CleverDriver>();
  const auto master = std::make_shared<MasterDriver>();
  Drivers drivers;
  std::size_t dealt = 0;
  for (int s = first; s <= kMaxSnakes; ++s) {
    const RivalKind kind = list.kinds[dealt++ % list.kinds.size()];
    if (kind == RivalKind::kClever) drivers.Give(s, clever);
    if (kind == RivalKind::kMaster) drivers.Give(s, master);
  }
  return drivers;
}

}  // namespace coilrun
