#include "shell/keys.h"

#include <algorithm>
#include <array>
#include <string>

#include "game/turn_queue.h"
#include "menus/menu_keys.h"
#include "menus/pointer.h"
#include "menus/score_name.h"
#include "model/scan_to_char.h"
#include "ports/scan_codes.h"
#include "shell/cheats.h"
#include "shell/leaving.h"

namespace coilrun {
namespace {

constexpr int kNameLine = 8;

bool OnOptionsPage(const State& state) {
  return state.menus.OptionsPage == 1;
}
bool OnScorePage(const State& state) {
  return state.menus.ScorePage == 1;
}
bool OnNameLine(const State& state) {
  return OnOptionsPage(state) && state.menus.OptionsCursor == kNameLine;
}

void DropLast(std::string& text) {
  if (!text.empty()) text.pop_back();
}

/// Where one of the player's keys or a controller steers; `kNone` for any other key.
Dir SteeringOf(const State& state, int key) {
  constexpr std::array kDirections = {Dir::kForw, Dir::kBack, Dir::kLeft, Dir::kRight};
  if (key >= kFirstPadCode) {
    return kDirections.at(static_cast<std::size_t>((key - kFirstPadCode) % kPadDirections));
  }
  const auto* const found = std::find_if(kDirections.begin(), kDirections.end(), [&](Dir dir) {
    const auto& codes = KeysOf(state.Keys(kPlayer), dir);
    return std::find(codes.begin(), codes.end(), key) != codes.end();
  });
  return found == kDirections.end() ? Dir::kNone : *found;
}

void PlayKey(State& state, int key) {
  const Dir asked = SteeringOf(state, key);
  if (asked != Dir::kNone) AskTurn(state, kPlayer, asked);
  state.shell.WaitingForStart = false;
}

/// Enter, Space and the steering keys close the level screen if the player wants that.
void LevelScreenKey(State& state, int key) {
  ShellState& now = state.shell;
  if (!state.more.AnyKey || !now.ShowLevelScreen || now.InMenu || now.WaitingForKey) return;
  const bool steers = SteeringOf(state, key) != Dir::kNone;
  if (!steers && key != kKeyEnter && key != kKeySpace) return;
  now.ShowLevelScreen = false;
  if (steers) PlayKey(state, key);
}

void DispatchKey(Shell& shell, int key) {
  const ShellState& now = shell.state.shell;
  if (now.IsPause) return;
  if (now.LevelIntroPending || now.ShowLevelScreen) return LevelScreenKey(shell.state, key);
  if (now.InMenu) {
    MenuKey(shell.menus, key);
  } else {
    PlayKey(shell.state, key);
  }
}

void EditScoreName(Shell& shell, int key) {
  if (key == kKeyBackspace) ShortenScoreName(shell.state);
  if (key == kKeyEnter || key == kKeyEscape) StoreScoreName(shell.game);
}

void EditText(Shell& shell, int key) {
  State& state = shell.state;
  if (EditsScoreName(state)) return EditScoreName(shell, key);
  std::string& name = state.Snakes(kPlayer).Name;
  if (key == kKeyEnter) {
    if (OnScorePage(state)) state.mode.CheatLine.clear();
    if (OnNameLine(state)) name.clear();
  }
  if (key == kKeyBackspace) {
    if (OnScorePage(state)) DropLast(state.mode.CheatLine);
    if (OnNameLine(state)) DropLast(name);
  }
}

void TypeKey(Shell& shell, int key) {
  State& state = shell.state;
  const bool inRange = key >= kKeyFirstCharacter && key <= kKeyLastCharacter;
  if (!inRange || key == kKeyEnter || key == kKeyLeftShift || key == kKeyRightShift) return;
  if (!state.menus.TypingActive) return;
  const std::string typed = ScanToChar(key, state.keys.ShiftDown, state.mode.KeyboardLayout);
  if (state.menus.InputTarget == InputTarget::kPlayerName) {
    std::string& name = state.Snakes(kPlayer).Name;
    name = (name + typed).substr(0, kLongestName);
  }
  if (EditsScoreName(state)) TypeScoreName(state, typed);
  if (state.menus.InputTarget == InputTarget::kCheat) TypeCheat(shell, typed);
}

void FunctionKey(ShellState& shell, int key) {
  if (key == kKeyF1 && !shell.InMenu && !shell.IsPause && !shell.WaitingForKey) {
    shell.ShowLevelScreen = !shell.ShowLevelScreen;
  }
  if (key == kKeyF2) shell.ShowNames = !shell.ShowNames;
  if (key == kKeyF3) shell.ShowMatchStats = !shell.ShowMatchStats;
  if (key == kKeyF4) shell.MatchStatsDetail = !shell.MatchStatsDetail;
  if (key == kKeyPause && !shell.InMenu) shell.IsPause = !shell.IsPause;
}

/// Switches between the game and the menus.
void LeaveOrResumeGame(ShellState& shell) {
  if (shell.WaitingForKey) shell.WaitAborted = true;
  shell.IsPause = false;
  shell.ShowLevelScreen = false;
  shell.InMenu = !shell.InMenu;
}

void EscapeKey(Shell& shell) {
  State& state = shell.state;
  if (!state.shell.DisplayReady) {
    AbandonStartUp(shell);
  } else if (!LeavePage(shell.menus) && !state.shell.NoGameRunning) {
    LeaveOrResumeGame(state.shell);
  }
}

void FireKey(Shell& shell, int key) {
  DispatchKey(shell, key);
  EditText(shell, key);
  shell.state.keys.LastKey = key;
  shell.state.keys.KeyPressed = key;
  TypeKey(shell, key);
  FunctionKey(shell.state.shell, key);
  if (key == kKeyEscape) EscapeKey(shell);
}

void ReadHeldKeys(Shell& shell) {
  KeyState& keys = shell.state.keys;
  shell.ports.keys.ReadKeys(keys.Down);
  keys.ShiftDown = keys.Down[kKeyLeftShift] != 0;
  for (int key = 0; key < static_cast<int>(keys.Down.size()); ++key) {
    const auto slot = static_cast<std::size_t>(key);
    if (keys.Down[slot] == 0) {
      keys.Armed[slot] = true;
      continue;
    }
    if (shell.state.shell.DebugMode)
      shell.renderer.Text().DrawSystemText(std::to_string(key), 1, 1);
    if (keys.Armed[slot]) FireKey(shell, key);
    keys.Armed[slot] = false;
  }
}

/// On the menu pages, its buttons and its wheel act as keys.
void ReadPointer(Shell& shell) {
  while (const auto event = shell.ports.keys.NextPointerEvent()) {
    const ShellState& now = shell.state.shell;
    if (!now.DisplayReady || !now.InMenu) continue;
    const int key = PointerKey(shell.menus, *event);
    if (key != 0) FireKey(shell, key);
  }
}

}  // namespace

void HandleKeys(Shell& shell) {
  ReadHeldKeys(shell);
  ReadPointer(shell);
}

}  // namespace coilrun
