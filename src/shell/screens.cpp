#include "shell/screens.h"

#include "game/shown_snakes.h"

namespace coilrun {

void DrawFrame(Shell& shell, bool flip) {
  shell.music.Check();
  PlaceWaitingSnakes(shell.state);
  shell.renderer.DrawFrame(SnakesShownInFrame(shell.state));
  if (flip) shell.pump.Flip();
}

void DrawLevelScreen(Shell& shell) {
  ShellState& now = shell.state.shell;
  shell.state.keys.LastKey = 0;
  now.lvlTime = false;
  now.ShowLevelScreen = true;
  now.LevelIntroPending = true;
  while (now.ShowLevelScreen) {
    DrawFrame(shell, false);
    ReseedFromClock(shell.state);
    now.InMenu = false;
    shell.renderer.Overlay().DrawLevelScreenPage();
    shell.pump.Yield();
    shell.pump.Flip();
    ++now.FrameCount;
  }
  now.lvlTime = true;
  now.LevelIntroPending = false;
  shell.renderer.Text().SetTextStyle("Standart");
}

void DrawPauseScreen(Shell& shell) {
  ShellState& now = shell.state.shell;
  do {
    DrawFrame(shell, false);
    shell.renderer.Overlay().DrawPausePicture();
    shell.pump.Flip();
    ++now.FrameCount;
    shell.pump.Yield();
  } while (now.IsPause);
}

}  // namespace coilrun
