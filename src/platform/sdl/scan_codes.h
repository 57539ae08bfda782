#pragma once

#include <SDL.h>

namespace coilrun {

/// The PC scan code (extended keys + 128) of a key; 0 for keys that have none.
int ScanCodeOf(SDL_Scancode key);

}  // namespace coilrun
