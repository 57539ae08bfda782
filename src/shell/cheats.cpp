#include "shell/cheats.h"

#include "content/load_level.h"
#include "model/numbers.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

constexpr std::size_t kLongestLine = 9;
constexpr std::string_view kUnlockCode = "quietfern";
constexpr std::string_view kReplyStart = "Cheater! - ";

void Reply(State& state, const std::string& text) {
  state.menus.StatusText = std::string{kReplyStart} + text;
  state.mode.Cheated = true;
  state.mode.CheatLine.clear();
}

void Toggle(State& state, bool& flag, std::string_view what) {
  flag = !flag;
  Reply(state, std::string{what} + " mode " + OnOffText(flag));
}

/// If the level cannot be loaded, the loader's own line stays in the status.
void Warp(Shell& shell, const std::string& digits) {
  const std::string number = NumberText(LeadingNumber(digits));
  shell.game.host.LoadLevel(InProgramFolder("\\lvl\\lvl", number + ".dat"));
  State& state = shell.state;
  if (!state.shell.NoGameRunning) {
    Reply(state, "Level loaded... (Press ESC twice)");
    return;
  }
  state.mode.Cheated = true;
  state.mode.CheatLine.clear();
}

void GiveAtOnce(State& state, char what) {
  SnakeRec& player = state.Snakes(kPlayer);
  switch (what) {
    case 'S':
      player.Score += 100;
      Reply(state, "100 pts given...");
      break;
    case 'L':
      ++player.Lives;
      Reply(state, "one live given...");
      break;
    case 'P':
      player.Score -= 100;
      player.Immortal = true;
      player.ImmortalSecs += 20;
      ++player.PowerEaten;
      Reply(state, "atomic power given...");
      break;
    default:
      break;
  }
}

Int16* EatenCounter(SnakeRec& player, char what) {
  switch (what) {
    case 'Y':
      return &player.YellowEaten;
    case 'R':
      return &player.RedEaten;
    case 'B':
      return &player.BlueEaten;
    case 'D':
      return &player.BlackEaten;
    default:
      return nullptr;
  }
}

void GiveItems(State& state, char what, const std::string& line) {
  Int16* eaten = EatenCounter(state.Snakes(kPlayer), what);
  if (eaten == nullptr) {
    state.mode.CheatLine.clear();
    return;
  }
  const int count = RoundToInt(LeadingNumber(line.substr(line.size() - 1)));
  *eaten += count;
  Reply(state, std::to_string(count) + " items given...");
}

void Give(State& state, const std::string& line) {
  const char what = UpperCase(line[4]);
  if (line.size() == 5) {
    GiveAtOnce(state, what);
  } else if (line.size() <= 7) {
    GiveItems(state, what, line);
  }
}

void RunCommand(Shell& shell) {
  State& state = shell.state;
  ModeState& mode = state.mode;
  const std::string line = mode.CheatLine;
  if (line.size() == 6 && line.starts_with("warp")) Warp(shell, line.substr(4));
  if (state.shell.NoGameRunning) return;
  if (line == "god") Toggle(state, mode.GodMode, "GOD");
  if (line == "noclip") Toggle(state, mode.NoClip, "NoClipping");
  if (line == "timepass") Toggle(state, mode.TimePass, "NoTimeChecking");
  if (line.size() > 4 && line.starts_with("give")) Give(state, line);
}

}  // namespace

const char* OnOffText(bool value) {
  return value ? "activated" : "deactivated";
}

void TypeCheat(Shell& shell, const std::string& typed) {
  ModeState& mode = shell.state.mode;
  mode.CheatLine = (mode.CheatLine + typed).substr(0, kLongestLine);
  if (mode.CheatLine == kUnlockCode) {
    mode.Cheated = true;
    mode.CheatLine.clear();
  }
  if (mode.Cheated) RunCommand(shell);
}

}  // namespace coilrun
