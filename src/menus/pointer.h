#pragma once

#include "menus/context.h"
#include "ports/pointer.h"

namespace coilrun {

/// Carries out what the pointer does on a menu page: shows it and moves the cursor to where it
/// points. Returns the key that a button or the wheel stands for; 0 for none.
int PointerKey(MenuContext& menus, const PointerEvent& event);

/// Hides the pointer when it has been still for two seconds, or at once.
void HideStillPointer(MenuContext& menus);
void HidePointer(MenuContext& menus);

}  // namespace coilrun
