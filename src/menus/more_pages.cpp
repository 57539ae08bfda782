#include "menus/more_pages.h"

#include <algorithm>
#include <array>

#include "menus/controls_page.h"
#include "menus/match_page.h"
#include "menus/more_page.h"
#include "menus/question.h"
#include "ports/scan_codes.h"

namespace coilrun {
namespace {

struct Page {
  MorePage page;
  MorePage parent;
  Lines (*lines)(MenuContext& menus);
  /// Draws what the page has besides its lines; null for nothing.
  void (*decorate)(MenuContext& menus);
};

constexpr std::array<Page, 3> kPages = {{
    {MorePage::kMore, MorePage::kNone, MoreLines, nullptr},
    {MorePage::kMatch, MorePage::kMore, MatchLines, DrawMatchLevel},
    {MorePage::kControls, MorePage::kMore, ControlsLines, nullptr},
}};

const Page& OpenedPage(const State& state) {
  const auto* const found = std::find_if(
      kPages.begin(), kPages.end(), [&](const Page& page) { return page.page == state.more.Page; });
  return found == kPages.end() ? kPages.front() : *found;
}

const Line& LineUnderCursor(const State& state, const Lines& lines) {
  const int last = static_cast<int>(lines.size());
  return lines.at(static_cast<std::size_t>(std::clamp<int>(state.more.Cursor, 1, last) - 1));
}

void ClosePages(MenuContext& menus) {
  menus.host.StorePage();
  menus.state.more.Page = MorePage::kNone;
  menus.state.more.Cursor = 0;
}

LineAct ActOf(int key) {
  switch (key) {
    case kKeyEnter:
      return LineAct::kEnter;
    case kKeyLeft:
      return LineAct::kLeft;
    case kKeyRight:
      return LineAct::kRight;
    case kKeyBackspace:
      return LineAct::kEmpty;
    default:
      return LineAct::kNone;
  }
}

}  // namespace

void OpenPage(MenuContext& menus, MorePage page, int cursor) {
  if (menus.state.more.Page != MorePage::kNone) menus.host.StorePage();
  menus.host.NotePageOpened();
  if (page == MorePage::kMatch) LookAtLevels(menus);
  menus.state.more.Page = page;
  menus.state.more.Cursor = cursor;
}

void GoBack(MenuContext& menus) {
  const Page& left = OpenedPage(menus.state);
  if (left.parent == MorePage::kNone) return ClosePages(menus);
  OpenPage(menus, left.parent, EntryOf(menus, left.page));
}

void ShowMorePage(MenuContext& menus) {
  State& state = menus.state;
  const Page& page = OpenedPage(state);
  const Lines lines = page.lines(menus);
  const Line& lit = LineUnderCursor(state, lines);
  menus.renderer.Menus().DrawPageBackground(page.page);
  DrawLines(menus, lines);
  if (page.decorate != nullptr) page.decorate(menus);
  DrawLit(menus, lit);
  if (!state.menus.statusHeld) state.menus.StatusText = lit.help;
  if (state.menus.awaitsKey) state.menus.StatusText = AwaitedKeyText(lit.subject);
  menus.renderer.Menus().DrawStatus(state.menus.StatusText);
}

void MorePageKey(MenuContext& menus, int key) {
  if (key == kKeyTab) return ClosePages(menus);
  Int16& cursor = menus.state.more.Cursor;
  const Lines lines = MorePageLines(menus);
  const int move = static_cast<int>(key == kKeyDown) - static_cast<int>(key == kKeyUp);
  cursor = Wrapped(cursor + move, static_cast<int>(lines.size()));
  const LineAct act = ActOf(key);
  const Line& line = LineUnderCursor(menus.state, lines);
  if (act != LineAct::kNone) line.act(menus, act, line.subject);
}

Lines MorePageLines(MenuContext& menus) {
  return OpenedPage(menus.state).lines(menus);
}

}  // namespace coilrun
