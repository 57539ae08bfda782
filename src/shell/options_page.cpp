#include "shell/options_page.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "model/numbers.h"
#include "model/shown_model.h"
#include "render/options_lines.h"

namespace coilrun {
namespace {

constexpr int kLines = 14;

/// Applies the pending action to one line.
using Apply = void (*)(Shell&);

struct Line {
  std::string_view help;
  Apply apply;
  bool singlePlayerOnly = false;
};

/// -1, 1, or 0 when the pending action is neither "-" nor "+".
int Step(const Shell& shell) {
  const MenuAction action = shell.state.menus.MenuAction;
  return static_cast<int>(action == MenuAction::kPlus) -
         static_cast<int>(action == MenuAction::kMinus);
}

void StepWithin(const Shell& shell, double& value, double by, double lowest, double highest) {
  value = std::min(std::max(value + Step(shell) * by, lowest), highest);
}

void Toggle(const Shell& shell, bool& flag) {
  if (shell.state.menus.MenuAction != MenuAction::kNone) flag = !flag;
}

void ApplyGlobalSpeed(Shell& shell) {
  State& state = shell.state;
  SettingsState& settings = state.settings;
  double speed = ShownGlobalSpeed(state);
  StepWithin(shell, speed, 1, settings.MaxSpeed.Own(), settings.MinSpeed.Own());
  settings.GlobalSpeed = RoundToInt(speed);
  if (state.level.SetsPeriod) return;
  SnakeRec& player = state.Snakes(kPlayer);
  player.BaseInterval = RoundToInt(speed);
  state.timers.SetInterval(StepTimer(state, kPlayer), player.BaseInterval);
}

void ApplyPlayerName(Shell& shell) {
  shell.state.menus.TypingActive = true;
  shell.state.menus.InputTarget = InputTarget::kPlayerName;
}

void ApplyMusicOn(Shell& shell) {
  Toggle(shell, shell.state.settings.MusicEnabled);
  Music& music = shell.music;
  if (!music.Loaded() || !shell.state.settings.MusicEnabled) {
    music.snStopMusic();
  } else if (!shell.state.music.MusicPlaying) {
    music.snPlayMusic(true, 0);
  }
}

void ApplyMusicVolume(Shell& shell) {
  Int16& volume = shell.state.settings.MusicVolume;
  volume = std::clamp(volume + Step(shell), 0, 100);
  shell.music.snMusicVolume(volume);
}

void ApplyModel(Shell& shell) {
  State& state = shell.state;
  const int step = state.menus.MenuAction == MenuAction::kCycle ? 1 : Step(shell);
  Int16& model = state.Snakes(kPlayer).Model;
  model = std::max(std::min<int>(ShownModel(state, model) + step, state.LastModel), 0);
}

constexpr std::array<Line, kLines> kOptions = {{
    {"Set the maximum game speed [10fast - 60slow]",
     [](Shell& s) { StepWithin(s, s.state.settings.MaxSpeed.Own(), 1, 10, 60); }},
    {"Set the minimum game speed [100fast - 250slow]",
     [](Shell& s) { StepWithin(s, s.state.settings.MinSpeed.Own(), 1, 100, 250); }},
    {"Set the global game speed [maximum and minumem set above]", ApplyGlobalSpeed},
    {"Will cause the game not to reset the speed after you collected a banana [Yes/No]",
     [](Shell& s) { Toggle(s, s.state.settings.NoSpeedReset); }, true},
    {"Increase the game speed every 2 seconds [Yes/No]",
     [](Shell& s) { Toggle(s, s.state.settings.IncSpeed.Own()); }, true},
    {"Set the speed increase value [0.5 - 30] (Speed will increase by it every 2 seconds)",
     [](Shell& s) { StepWithin(s, s.state.settings.SpeedRate.Own(), 0.5, 0.5, 30); }, true},
    {"Show an FPS counter in the top right edge [Yes/No]",
     [](Shell& s) { Toggle(s, s.state.shell.ShowFPS); }},
    {"Type your name (14 chars max.) Press enter to clear", ApplyPlayerName},
    {"Show new animated 3D Items [Yes/No]",
     [](Shell& s) { Toggle(s, s.state.settings.AnimatedItems); }},
    {"Play sounds [Yes/No]", [](Shell& s) { Toggle(s, s.state.settings.SndEnabled); }},
    {"Allow AI Snakes to play sounds [Yes/No]",
     [](Shell& s) { Toggle(s, s.state.settings.KiSndEnabled); }},
    {"Enable Music?", ApplyMusicOn},
    {"Set the Music Volume (in %)", ApplyMusicVolume},
    {"Select your color!", ApplyModel},
}};

void WrapCursor(Int16& cursor) {
  if (cursor <= 0) cursor = kLines;
  if (cursor > kLines) cursor = 1;
}

void ApplyAction(Shell& shell) {
  MenuState& menus = shell.state.menus;
  const Line& line = kOptions[static_cast<std::size_t>(menus.OptionsCursor - 1)];
  const bool barred = line.singlePlayerOnly && IsMultiplayer(shell.state.mode.GameMode);
  menus.StatusText = barred ? "Not in DM mode" : line.help;
  if (!barred) line.apply(shell);
}

}  // namespace

void OptionsPage(Shell& shell) {
  shell.renderer.Menus().DrawOptionsLines();
  WrapCursor(shell.state.menus.OptionsCursor);
  ApplyAction(shell);
  shell.renderer.Menus().DrawOptionsCursorLine();
  shell.state.menus.MenuAction = MenuAction::kNone;
  shell.renderer.Menus().DrawOptionsFooter();
}

}  // namespace coilrun
