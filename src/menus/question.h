#pragma once

#include "model/state.h"

namespace coilrun {

/// Whether Enter has to be pressed once more, because a game that runs would be given up; asks the
/// first time.
bool AsksFirst(State& state);
/// Another key than Enter, or another line, takes the question back.
void TakeQuestionBack(MenuState& menus);

}  // namespace coilrun
