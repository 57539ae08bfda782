#include "shell/display.h"

#include "content/archives.h"
#include "content/model_packs.h"
#include "model/feed.h"

namespace coilrun {
namespace {

/// How many files the loading of pictures and of sounds expects, for the progress bar.
constexpr int kExpectedPictures = 323;
constexpr int kExpectedSounds = 5;

void ShowCaption(Shell& shell, std::string_view caption) {
  shell.state.feed.introCaption = caption;
  shell.renderer.ShowProgress();
}

void LeaveFullScreen(Shell& shell) {
  shell.ports.screen.SetFullScreen(false);
  shell.pump.Yield();
  shell.ports.screen.ShowPointer(true);
}

void RestoreFullScreen(Shell& shell) {
  shell.ports.screen.SetFullScreen(true);
  shell.ports.screen.ShowPointer(shell.state.shell.DebugMode);
  DD_CreateGraphicsFromFile(shell);
  shell.renderer.Text().SetTextStyle("Standart");
}

}  // namespace

void DD_CreateGraphicsFromFile(Shell& shell) {
  State& state = shell.state;
  state.feed.LoadTotal = kExpectedPictures;
  shell.renderer.FillBack({});
  ShowCaption(shell, "Decompressing Textures...");
  DebugPrint(state, "DD_CreateGraphicsFromFile: decompressing files from gfx.snr");
  if (!state.shell.DisplayReady) {
    SnUnextractFile(shell.content, InProgramFolder("\\gfx.snr"), InProgramFolder("\\"),
                    kArchivePassword);
  }
  shell.renderer.LoadStandardPictures();
  SnGetModelPacks(shell.content);
}

void SnCreateSounds(Shell& shell) {
  State& state = shell.state;
  state.feed.LoadTotal = kExpectedSounds;
  state.feed.UnpackedCount = 0;
  ConsolePrint(state, "SnCreateSounds: Decompressing snd.snr");
  ShowCaption(shell, "Unextracting Sounds...");
  SnUnextractFile(shell.content, InProgramFolder("\\snd.snr"), InProgramFolder("\\"),
                  kArchivePassword);
  ConsolePrint(state, "SnCreateSounds: All Done!");
  ShowCaption(shell, "Buffering Sounds...");
  shell.effects.LoadStandardEffects();
}

void LoseFocus(Shell& shell) {
  LeaveFullScreen(shell);
  DebugPrint(shell.state, "WinCallback_CallBackWndProc: Coilrun.exe lost focus...");
  ShellState& now = shell.state.shell;
  const bool elsewhere =
      now.IsPause || now.NoGameRunning || now.InMenu || now.ShowLevelScreen || now.WaitingForKey;
  if (!elsewhere) now.IsPause = true;
}

void RegainFocus(Shell& shell) {
  ShellState& now = shell.state.shell;
  if (!now.DisplayReady) return;
  shell.renderer.ClearPicBuffers();
  RestoreFullScreen(shell);
  DebugPrint(shell.state, "WinCallback_CallBackWndProc: Coilrun.exe got focus back...");
  if (now.WaitingAfterDeath || now.WaitingAfterTimeout) now.WaitAborted = true;
}

}  // namespace coilrun
