#include "game/waiting.h"

#include <algorithm>
#include <utility>

#include "ports/scan_codes.h"

namespace coilrun {
namespace {

constexpr int kMessageFont = 4;
/// The box begins one row above the first text; texts and rows lie on the same grid.
constexpr int kBoxTop = 200;
constexpr int kRowHeight = 15;
/// The box takes up the centred texts from this one on.
constexpr int kFirstBoxLine = 5;

/// Whether the last key is the awaited one; Space stands in for Enter if the player wants that.
bool Answers(const State& state, int scanCode) {
  const int key = state.keys.LastKey;
  return key == scanCode || (state.more.AnyKey && scanCode == kKeyEnter && key == kKeySpace);
}

}  // namespace

void WaitForKey(Game& game, int scanCode) {
  State& state = game.state;
  state.keys.LastKey = 0;
  state.shell.lvlTime = false;
  state.shell.WaitingForKey = true;
  bool waiting = true;
  while (waiting) {
    game.host.Yield();
    game.host.DrawFrame();
    waiting = !state.shell.WaitAborted && !Answers(state, scanCode);
    state.shell.WaitAborted = false;
  }
  state.shell.lvlTime = true;
  state.shell.WaitingForKey = false;
}

void SetCenterLine(State& state, int line, std::string text, int y) {
  state.CenterLines(line) = {std::move(text), y, kMessageFont};
}

void FrameCenterLines(State& state) {
  std::size_t longest = 0;
  int count = 0;
  for (const CenterLine& line : state.CenterLines) {
    longest = std::max(longest, line.Text.size());
    if (!line.Text.empty()) ++count;
  }
  const std::string edge(longest + 4, '*');
  const std::string side = '*' + std::string(longest + 2, ' ') + '*';
  const int bottom = std::min(count + 2, state.CenterLines.kLast - kFirstBoxLine);
  for (int row = 0; row <= bottom; ++row) {
    const bool isEdge = row == 0 || row == count + 2;
    SetCenterLine(state, kFirstBoxLine + row, isEdge ? edge : side, kBoxTop + kRowHeight * row);
  }
}

}  // namespace coilrun
