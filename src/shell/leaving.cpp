#include "shell/leaving.h"

#include "content/archives.h"
#include "ports/terminate.h"

namespace coilrun {
namespace {

void GiveScreenBackAndCleanUp(Shell& shell) {
  shell.state.shell.Running = false;
  shell.ports.screen.SetFullScreen(false);
  CleanUpFiles(shell.content);
}

}  // namespace

void UnloadWindow(Shell& shell, int exitCode) {
  if (shell.state.more.Page != MorePage::kNone) shell.menus.host.StorePage();
  shell.game.host.SaveSettings();
  shell.ports.screen.ShowPointer(true);
  throw Terminate{exitCode};
}

void ExitGame(Shell& shell) {
  GiveScreenBackAndCleanUp(shell);
  UnloadWindow(shell);
}

void AbandonStartUp(Shell& shell, int exitCode) {
  GiveScreenBackAndCleanUp(shell);
  throw Terminate{exitCode};
}

}  // namespace coilrun
