#include "model/feed.h"

#include <algorithm>

namespace coilrun {
namespace {

/// How many ticks the oldest line stays at the top.
constexpr int kLineAge = 2;
constexpr std::string_view kLineBreak = "\r\n";

void DropOldest(Table<std::string, kMsgLines>& lines) {
  std::shift_left(lines.begin(), lines.end(), 1);
  lines(kMsgLines).clear();
}

}  // namespace

void MessagePrint(State& state, std::string_view text) {
  FeedState& feed = state.feed;
  feed.MsgAge = 0;
  auto* line = std::find(feed.MsgLines.begin(), feed.MsgLines.end(), "");
  if (line == feed.MsgLines.end()) {
    DropOldest(feed.MsgLines);
    --line;
  }
  *line = text;
  feed.DispMsg = true;
}

void AgeMessages(State& state) {
  FeedState& feed = state.feed;
  ++feed.MsgAge;
  if (feed.MsgAge != kLineAge || !feed.DispMsg) return;
  DropOldest(feed.MsgLines);
  feed.MsgAge = 0;
}

void ConsolePrint(State& state, std::string_view line) {
  auto& console = state.feed.Console;
  std::shift_left(console.begin(), console.end(), 1);
  std::string ended{line};
  if (!ended.ends_with(kLineBreak)) ended += kLineBreak;
  console(console.kLast) = ended;
  if (state.shell.DebugMode) MessagePrint(state, ended);
}

void DebugPrint(State& state, std::string_view line) {
  if (state.shell.DebugMode) ConsolePrint(state, line);
}

}  // namespace coilrun
