#include "shell/start_up.h"

#include "game/match.h"
#include "menus/match_page.h"
#include "model/feed.h"
#include "shell/command_line.h"
#include "shell/leaving.h"
#include "shell/main_loop.h"
#include "shell/more_settings.h"

namespace coilrun {
namespace {

constexpr std::string_view kCredits =
    "The Coilrun project presents: Coilrun 3D /\\ "
    "Programming: the Coilrun developers /\\ "
    "Arts: the Coilrun developers, with POV-Ray and librsvg /\\ "
    "Level Design: the Coilrun developers /\\ "
    "Beta Testers: everyone who plays and reports /\\ "
    "Thanx to: SDL; libarchive; OpenSSL; libpng; SimpleIni; nlohmann-json; GoogleTest; Liberation "
    "Fonts; Comic Neue; "
    "League Spartan; Debian /\\  ";

/// Error numbers for the level folder: it is there but empty, or it is missing.
constexpr int kFolderEmpty = 0;
constexpr int kFolderMissing = 76;

void CheckLevelFolder(Shell& shell) {
  const auto levels = shell.ports.files.List(InProgramFolder("\\lvl"), ".dat");
  if (levels && !levels->empty()) return;
  const int error = levels ? kFolderEmpty : kFolderMissing;
  shell.ports.box.Show(
      "INIT_Main: Error No \\lvl folder! (" + std::to_string(error) + ")",
      "The Level files were not found.\n"
      "This EXE (Coilrun.exe) must be located in the folder where 'lvl' and 'gfx.snr' are.\n"
      "Put it there and it will work",
      BoxButtons::kOk);
  UnloadWindow(shell, 1);
}

void RunSwitches(Shell& shell, const std::string& commandLine) {
  CommandLine switches(shell.state, shell.ports.files, shell.ports.box, shell.ports.settings);
  for (const std::string& arg : SplitSwitches(commandLine)) switches.SetCommand(arg);
}

/// A level given by name starts at once, with its level-start screen; otherwise the menus open.
void ChooseFirstScreen(State& state) {
  const bool named = state.mode.LevelSwitchGiven;
  state.shell.NoGameRunning = !named;
  state.shell.InMenu = !named;
  state.shell.LevelIntroPending = named;
  state.shell.ShowLevelScreen = named;
}

}  // namespace

void StartUp(Shell& shell, std::string_view version, const std::string& commandLine) {
  State& state = shell.state;
  state.menus.CreditsText = kCredits;
  state.shell.DisplayReady = false;
  ConsolePrint(state, "\r\n");
  state.feed.introCaption = "Coilrun v. " + std::string{version} + " loading...";
  state.mode.KeyboardLayout = KeyboardLayout::kUs;
  shell.game.host.LoadSettings();
  LoadMoreSettings(state, shell.ports.settings);
  CheckLevelFolder(shell);
  shell.pump.Yield();
  RunSwitches(shell, commandLine);
  NoteAskedGame(state);
  ChooseFirstMatch(state, shell.menus.levels);
  ChooseFirstScreen(state);
  DebugPrint(state, "INIT_Main: Attaching Win Hook");
  state.timers.Start(state.timers.keybrd);
  MessagePrint(state, "Loading Windows Sockets...");
  RunGame(shell);
}

}  // namespace coilrun
