#include "shell/level_watch.h"

namespace coilrun {
namespace {

/// Takes the player from anywhere to the level's start, or to the main page when it does not load.
void Reload(Shell& shell, const std::string& path) {
  State& state = shell.state;
  state.menus.OptionsPage = 0;
  state.menus.ScorePage = 0;
  state.more.Page = MorePage::kNone;
  state.more.Cursor = 0;
  state.shell.IsPause = false;
  shell.game.host.LoadLevel(path);
  state.shell.InMenu = state.shell.NoGameRunning;
  state.shell.LevelIntroPending = !state.shell.NoGameRunning;
}

}  // namespace

void LevelWatch::Look(Shell& shell) {
  const ShellState& now = shell.state.shell;
  if (!now.DisplayReady || now.WaitingForKey) return;
  const std::string path = InProgramFolder("\\lvl\\", shell.state.mode.StartLevelName);
  auto contents = shell.ports.files.Read(path);
  if (!contents) return;
  const bool changed = seen_ && *seen_ != *contents;
  seen_ = std::move(contents);
  if (changed) Reload(shell, path);
}

}  // namespace coilrun
