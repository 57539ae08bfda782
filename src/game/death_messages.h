#pragma once

#include <string>

#include "game/death.h"

namespace coilrun {

/// What the feed says about a death in a match. `roll` is 1 to 3; `other` is the dying snake itself
/// when it hit its own body.
std::string DeathMessage(const SnakeRec& victim, DeathCause cause, const SnakeRec& other, int roll);

}  // namespace coilrun
