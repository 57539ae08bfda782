#pragma once

#include "menus/context.h"
#include "ports/pointer.h"

namespace coilrun {

/// What the pointer does on a menu page: shows itself and moves the cursor to where it points.
/// Returns the key that a button or the wheel stands for; 0 for none.
int PointerKey(MenuContext& menus, const PointerEvent& event);

/// The pointer goes when it has been still for two seconds, or at once.
void HideStillPointer(MenuContext& menus);
void HidePointer(MenuContext& menus);

}  // namespace coilrun
