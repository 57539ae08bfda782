#pragma once

#include "content/context.h"

namespace coilrun {

/// Finds the model packs, unpacks them (only before the display is ready), reads their descriptions
/// and loads their pictures. A bad pack costs a line on the console and nothing else.
void SnGetModelPacks(const ContentContext& context);

}  // namespace coilrun
