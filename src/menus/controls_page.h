#pragma once

#include <string>

#include "menus/page.h"

namespace coilrun {

/// The keys that steer each of those who play.
Lines ControlsLines(MenuContext& menus);

/// What the page says while it waits for a key for the line with this subject.
std::string AwaitedKeyText(int subject);
/// A key while the page waits for one: binds it to the direction under the cursor. One that cannot
/// steer keeps the page waiting.
void BindKey(MenuContext& menus, int key);

}  // namespace coilrun
