#include "menus/pointer.h"

#include "menus/main_page.h"
#include "menus/more_pages.h"
#include "menus/options_page.h"
#include "menus/question.h"
#include "ports/scan_codes.h"

namespace coilrun {
namespace {

constexpr std::int64_t kShownFor = 2'000'000;

void ShowPointer(MenuContext& menus) {
  MenuState& now = menus.state.menus;
  if (now.pointerHidesAt == 0) menus.screen.ShowPointer(true);
  now.pointerHidesAt = menus.state.timers.now + kShownFor;
}

void MoveTo(MenuState& menus, Int16& cursor, int entry) {
  if (entry == 0 || entry == cursor) return;
  cursor = entry;
  TakeQuestionBack(menus);
}

void PointAt(MenuContext& menus, Point place) {
  State& state = menus.state;
  MenuState& now = state.menus;
  now.isOnMore = false;
  if (now.awaitsKey || now.ScorePage == 1) return;
  if (now.OptionsPage == 1) return MoveTo(now, now.OptionsCursor, LineAt(OptionsLines(), place));
  if (state.more.Page != MorePage::kNone) {
    return MoveTo(now, state.more.Cursor, LineAt(MorePageLines(menus), place));
  }
  now.isOnMore = kMoreText.Holds({place.x, place.y, place.x + 1, place.y + 1});
  MoveTo(now, now.MainCursor, MainEntryAt(place));
}

}  // namespace

int PointerKey(MenuContext& menus, const PointerEvent& event) {
  const MenuState& now = menus.state.menus;
  ShowPointer(menus);
  switch (event.act) {
    case PointerAct::kMove:
      PointAt(menus, {event.x, event.y});
      return 0;
    case PointerAct::kLeftButton:
      return now.isOnMore ? kKeyTab : kKeyEnter;
    case PointerAct::kRightButton:
      return kKeyEscape;
    case PointerAct::kWheelUp:
      return now.awaitsKey ? 0 : kKeyLeft;
    case PointerAct::kWheelDown:
      return now.awaitsKey ? 0 : kKeyRight;
  }
  return 0;
}

void HideStillPointer(MenuContext& menus) {
  if (menus.state.timers.now >= menus.state.menus.pointerHidesAt) HidePointer(menus);
}

void HidePointer(MenuContext& menus) {
  MenuState& now = menus.state.menus;
  if (now.pointerHidesAt == 0) return;
  now.pointerHidesAt = 0;
  if (!menus.state.shell.DebugMode) menus.screen.ShowPointer(false);
}

}  // namespace coilrun
