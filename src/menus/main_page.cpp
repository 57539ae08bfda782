#include "menus/main_page.h"

#include <array>
#include <string_view>

#include "game/progress.h"
#include "menus/more_pages.h"
#include "menus/question.h"
#include "ports/scan_codes.h"

namespace coilrun {
namespace {

enum Entry : int { kNewGame = 1, kOptions = 2, kHighScores = 3, kExit = 4 };

constexpr std::array<std::string_view, 4> kEntryHelp = {
    "Start a new game", "Modify game options", "Show high score table", "Exit this cool game"};
constexpr std::size_t kTickerLength = 71;

/// Lights the entry under the cursor, which shows one pass later.
void LightEntry(MenuState& menus) {
  menus.EntryLit = {};
  if (menus.MainCursor <= 0) menus.MainCursor = kExit;
  if (menus.MainCursor > kExit) menus.MainCursor = kNewGame;
  menus.EntryLit(menus.MainCursor) = true;
  if (!menus.statusHeld)
    menus.StatusText = kEntryHelp[static_cast<std::size_t>(menus.MainCursor - 1)];
}

/// Moves the ticker on by one character per step of its timer; it never reaches the text's last
/// one.
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

void EnterNewGame(MenuContext& menus) {
  State& state = menus.state;
  StartNewGame(menus.game);
  if (state.shell.NoGameRunning) return;
  state.shell.InMenu = false;
  state.shell.LevelIntroPending = true;
}

/// Carries out the entry under the cursor.
void Select(MenuContext& menus) {
  MenuState& now = menus.state.menus;
  if (now.MainCursor == kNewGame && AsksFirst(menus.state)) return;
  now.ScorePage = 0;
  now.OptionsPage = 0;
  menus.game.host.PlayEffect("\\snd\\collect.wav", kPlayer);
  switch (now.MainCursor) {
    case kNewGame:
      EnterNewGame(menus);
      break;
    case kOptions:
      now.OptionsPage = 1;
      now.OptionsCursor = 1;
      break;
    case kHighScores:
      now.ScorePage = 1;
      now.StatusText = "Coilrun 'The Hall Of Fame' (High Scores)";
      break;
    case kExit:
      menus.host.LeaveProgram();
      break;
    default:
      break;
  }
}

}  // namespace

void MainPage(MenuContext& menus) {
  menus.renderer.Menus().DrawMainPage();
  LightEntry(menus.state.menus);
  AdvanceTicker(menus.state);
  menus.renderer.Menus().DrawMainPageFoot();
}

void MainPageKey(MenuContext& menus, int key) {
  Int16& cursor = menus.state.menus.MainCursor;
  if (key == kKeyUp) --cursor;
  if (key == kKeyDown) ++cursor;
  if (key == kKeyEnter) Select(menus);
  if (key == kKeyTab) OpenPage(menus, MorePage::kMore);
}

int MainEntryAt(Point place) {
  constexpr int kLeft = 290;
  constexpr int kRight = 540;
  constexpr int kHeight = 20;
  constexpr std::array<int, kExit> kTops = {215, 235, 255, 295};
  if (place.x < kLeft || place.x >= kRight) return 0;
  for (std::size_t entry = 0; entry < kTops.size(); ++entry) {
    if (place.y >= kTops[entry] && place.y < kTops[entry] + kHeight) {
      return static_cast<int>(entry) + 1;
    }
  }
  return 0;
}

}  // namespace coilrun
