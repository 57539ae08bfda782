#include "shell/main_menu.h"

#include <array>
#include <string_view>

#include "game/progress.h"
#include "shell/leaving.h"
#include "shell/options_page.h"

namespace coilrun {
namespace {

enum Entry : int { kNewGame = 1, kOptions = 2, kHighScores = 3, kExit = 4 };

constexpr std::array<std::string_view, 4> kEntryHelp = {
    "Start a new game", "Modify game options", "Show high score table", "Exit this cool game"};
constexpr int kFadeSteps = 60;
constexpr std::size_t kTickerLength = 71;

void FillAndPause(Shell& shell, int step) {
  shell.renderer.FillPrimary(FadeColor(step));
  shell.pump.Present();
  shell.pump.Sleep(1);
}

void FadeIn(Shell& shell) {
  for (int step = 1; step <= kFadeSteps; ++step) FillAndPause(shell, step);
}

void FadeOut(Shell& shell) {
  for (int step = kFadeSteps; step >= 0; --step) FillAndPause(shell, step);
}

/// The lit button shows one pass after the cursor has moved.
void LightEntry(MenuState& menus) {
  menus.EntryLit = {};
  if (menus.MainCursor <= 0) menus.MainCursor = kExit;
  if (menus.MainCursor > kExit) menus.MainCursor = kNewGame;
  menus.EntryLit(menus.MainCursor) = true;
  if (!menus.statusHeld)
    menus.StatusText = kEntryHelp[static_cast<std::size_t>(menus.MainCursor - 1)];
}

/// One character a step of the ticker's timer; the last character of the text is never reached.
void AdvanceTicker(State& state) {
  if (state.timers.ScrollNext.Enabled) return;
  MenuState& menus = state.menus;
  ++menus.CreditsPos;
  if (menus.CreditsPos >= static_cast<int>(menus.CreditsText.size())) menus.CreditsPos = 1;
  if (menus.CreditsPos >= 1 && menus.CreditsPos <= static_cast<int>(menus.CreditsText.size())) {
    menus.CreditsTicker += menus.CreditsText[static_cast<std::size_t>(menus.CreditsPos - 1)];
  }
  if (menus.CreditsTicker.size() > kTickerLength) {
    menus.CreditsTicker.erase(0, menus.CreditsTicker.size() - kTickerLength);
  }
  state.timers.Start(state.timers.ScrollNext);
}

void MainPage(Shell& shell) {
  shell.renderer.Menus().DrawMainPage();
  LightEntry(shell.state.menus);
  AdvanceTicker(shell.state);
  shell.renderer.Menus().DrawTicker();
}

void HighScorePage(Shell& shell) {
  shell.renderer.Menus().DrawHighScorePage();
  shell.state.menus.TypingActive = true;
  shell.state.menus.InputTarget =
      shell.state.menus.EditsName ? InputTarget::kScoreName : InputTarget::kCheat;
}

void DrawPage(Shell& shell) {
  MenuState& menus = shell.state.menus;
  menus.TypingActive = false;
  menus.InputTarget = InputTarget::kNone;
  if (menus.ScorePage == 1) {
    HighScorePage(shell);
  } else if (menus.OptionsPage == 1) {
    OptionsPage(shell);
  } else {
    MainPage(shell);
  }
}

void PrepareMenus(Shell& shell) {
  MenuState& menus = shell.state.menus;
  menus.EntryLit = {};
  if (menus.MenuAction != MenuAction::kNone) shell.game.host.LoadSettings();
  if (!menus.statusHeld) menus.StatusText.clear();
}

/// Whether Enter on "New Game" has to be pressed once more, because it gives up a running game.
bool AsksFirst(State& state) {
  MenuState& menus = state.menus;
  if (!state.more.Confirm || state.shell.NoGameRunning) return false;
  menus.asked = !menus.asked;
  if (!menus.asked) return false;
  menus.StatusText = "Press Enter again to give up the running game";
  menus.statusHeld = true;
  return true;
}

void EnterNewGame(Shell& shell) {
  StartNewGame(shell.game);
  if (shell.state.shell.NoGameRunning) return;
  shell.state.shell.InMenu = false;
  shell.state.shell.LevelIntroPending = true;
}

}  // namespace

void ShowMenus(Shell& shell) {
  ShellState& now = shell.state.shell;
  now.InMenu = true;
  FadeIn(shell);
  PrepareMenus(shell);
  while (now.InMenu) {
    DrawPage(shell);
    shell.pump.Flip();
    ++now.FrameCount;
    shell.pump.Yield();
  }
  shell.game.host.SaveSettings();
  FadeOut(shell);
}

void MenuSelect(Shell& shell) {
  MenuState& menus = shell.state.menus;
  if (menus.MainCursor == kNewGame && AsksFirst(shell.state)) return;
  menus.ScorePage = 0;
  menus.OptionsPage = 0;
  shell.game.host.PlayEffect("\\snd\\collect.wav", kPlayer);
  switch (menus.MainCursor) {
    case kNewGame:
      EnterNewGame(shell);
      break;
    case kOptions:
      menus.OptionsPage = 1;
      menus.OptionsCursor = 1;
      break;
    case kHighScores:
      menus.ScorePage = 1;
      menus.StatusText = "Coilrun 'The Hall Of Fame' (High Scores)";
      break;
    case kExit:
      ExitGame(shell);
    default:
      break;
  }
}

}  // namespace coilrun
