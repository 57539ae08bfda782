#pragma once

#include "model/state.h"
#include "ports/files.h"

namespace coilrun {

/// Prepares snakes 2 to `NumSnakes`: direction, start, speed, model, name, step timer. False when
/// the file of names exists but holds no line; nothing is prepared then.
bool SetupAiSnakes(State& state, const Files& files);

/// The lowest model that no snake has, else any.
int ChooseAiModel(State& state);

}  // namespace coilrun
