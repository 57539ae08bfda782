#pragma once

#include "model/state.h"
#include "ports/files.h"

namespace coilrun {

/// Prepares snakes 2 to `NumSnakes`: direction, start, speed, model, name, step timer. False, and
/// nothing is prepared, when the names file exists but has no lines.
bool SetupAiSnakes(State& state, const Files& files);

/// The lowest model that no snake has; a random one when all are taken.
int ChooseAiModel(State& state);

}  // namespace coilrun
