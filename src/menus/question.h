#pragma once

#include "model/state.h"

namespace coilrun {

/// Whether Enter has to be pressed once more because it would give up a running game; asks the
/// first time.
bool AsksFirst(State& state);
/// Withdraws the question, because of a key other than Enter or a move to another line.
void TakeQuestionBack(MenuState& menus);

}  // namespace coilrun
