#pragma once

#include <string>

#include "menus/page.h"

namespace coilrun {

/// The keys that each player steers with.
Lines ControlsLines(MenuContext& menus);

/// What the page says while it waits for a key for the line with this subject.
std::string AwaitedKeyText(int subject);
/// Takes a key while the page waits for one, and binds it to the direction under the cursor. A key
/// that cannot steer keeps the page waiting.
void BindKey(MenuContext& menus, int key);

}  // namespace coilrun
