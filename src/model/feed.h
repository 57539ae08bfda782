#pragma once

#include <string_view>

#include "model/state.h"

namespace coilrun {

/// Appends a line to the message feed, the only way the game talks to the player during play.
void MessagePrint(State& state, std::string_view text);
/// Ages the feed by one tick: after two, the oldest line goes.
void AgeMessages(State& state);
/// Appends a line to the start-up console, and in debug mode to the message feed too.
void ConsolePrint(State& state, std::string_view line);
/// `ConsolePrint` in debug mode only.
void DebugPrint(State& state, std::string_view line);

}  // namespace coilrun
