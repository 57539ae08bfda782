#include "menus/menu_keys.h"

#include <array>

#include "menus/controls_page.h"
#include "menus/main_page.h"
#include "menus/more_pages.h"
#include "menus/question.h"
#include "ports/scan_codes.h"

namespace coilrun {
namespace {

/// The arrow key that a controller's direction stands for in the menus.
int AsArrow(int key) {
  constexpr std::array<int, kPadDirections> kArrows = {kKeyUp, kKeyDown, kKeyLeft, kKeyRight};
  if (key < kFirstPadCode) return key;
  return kArrows.at(static_cast<std::size_t>((key - kFirstPadCode) % kPadDirections));
}

void OptionsPageKey(MenuState& menus, int key) {
  if (key == kKeyUp) --menus.OptionsCursor;
  if (key == kKeyDown) ++menus.OptionsCursor;
  if (key == kKeyEnter) menus.MenuAction = MenuAction::kCycle;
  if (key == kKeyLeft) menus.MenuAction = MenuAction::kMinus;
  if (key == kKeyRight) menus.MenuAction = MenuAction::kPlus;
}

}  // namespace

void MenuKey(MenuContext& menus, int pressed) {
  MenuState& now = menus.state.menus;
  if (now.awaitsKey) return BindKey(menus, pressed);
  const int key = AsArrow(pressed);
  if (key == kKeyEnter) {
    now.statusHeld = false;
  } else {
    TakeQuestionBack(now);
  }
  if (now.OptionsPage == 1) {
    OptionsPageKey(now, key);
  } else if (menus.state.more.Page != MorePage::kNone) {
    MorePageKey(menus, key);
  } else if (now.ScorePage != 1) {
    MainPageKey(menus, key);
  }
}

bool LeavePage(MenuContext& menus) {
  MenuState& now = menus.state.menus;
  if (now.ScorePage == 1) {
    now.ScorePage = 0;
    now.EnteredPlace = 0;
    menus.state.shell.InMenu = true;
  } else if (now.OptionsPage == 1) {
    now.OptionsPage = 0;
    menus.game.host.SaveSettings();
  } else if (now.awaitsKey) {
    now.awaitsKey = false;
  } else if (menus.state.more.Page != MorePage::kNone) {
    GoBack(menus);
  } else {
    return false;
  }
  return true;
}

}  // namespace coilrun
