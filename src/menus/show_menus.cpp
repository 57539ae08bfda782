#include "menus/show_menus.h"

#include "menus/main_page.h"
#include "menus/more_pages.h"
#include "menus/options_page.h"
#include "menus/pointer.h"

namespace coilrun {
namespace {

constexpr int kFadeSteps = 60;

void FillAndPause(MenuContext& menus, int step) {
  menus.renderer.FillPrimary(FadeColor(step));
  menus.pump.Present();
  menus.pump.Sleep(1);
}

void FadeIn(MenuContext& menus) {
  for (int step = 1; step <= kFadeSteps; ++step) FillAndPause(menus, step);
}

void FadeOut(MenuContext& menus) {
  for (int step = kFadeSteps; step >= 0; --step) FillAndPause(menus, step);
}

void HighScorePage(MenuContext& menus) {
  menus.renderer.Menus().DrawHighScorePage();
  MenuState& now = menus.state.menus;
  now.TypingActive = true;
  now.InputTarget = now.EditsName ? InputTarget::kScoreName : InputTarget::kCheat;
}

void DrawPage(MenuContext& menus) {
  MenuState& now = menus.state.menus;
  now.TypingActive = false;
  now.InputTarget = InputTarget::kNone;
  if (now.ScorePage == 1) {
    HighScorePage(menus);
  } else if (now.OptionsPage == 1) {
    OptionsPage(menus);
  } else if (menus.state.more.Page != MorePage::kNone) {
    ShowMorePage(menus);
  } else {
    MainPage(menus);
  }
}

void PrepareMenus(MenuContext& menus) {
  MenuState& now = menus.state.menus;
  now.EntryLit = {};
  if (now.MenuAction != MenuAction::kNone) menus.game.host.LoadSettings();
  if (!now.statusHeld) now.StatusText.clear();
}

}  // namespace

void ShowMenus(MenuContext& menus) {
  ShellState& now = menus.state.shell;
  now.InMenu = true;
  FadeIn(menus);
  PrepareMenus(menus);
  while (now.InMenu) {
    DrawPage(menus);
    HideStillPointer(menus);
    menus.pump.Flip();
    ++now.FrameCount;
    menus.pump.Yield();
  }
  HidePointer(menus);
  menus.game.host.SaveSettings();
  FadeOut(menus);
}

}  // namespace coilrun
