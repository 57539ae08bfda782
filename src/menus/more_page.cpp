#include "menus/more_page.h"

#include <algorithm>

#include "menus/more_pages.h"
#include "menus/word_steps.h"

namespace coilrun {
namespace {

MoreState& More(MenuContext& menus) {
  return menus.state.more;
}

void Open(MenuContext& menus, LineAct act, int page) {
  if (act == LineAct::kEnter) OpenPage(menus, static_cast<MorePage>(page));
}

template <bool MoreState::*kSwitch>
void Toggle(MenuContext& menus, LineAct act, int /*subject*/) {
  if (StepOrEnter(act) != 0) More(menus).*kSwitch = !(More(menus).*kSwitch);
}

template <bool MoreState::*kSwitch>
std::string SwitchText(MenuContext& menus, int /*subject*/) {
  return YesNo(More(menus).*kSwitch);
}

void ChangeRivals(MenuContext& menus, LineAct act, int /*subject*/) {
  const int step = StepOrEnter(act);
  if (step == 0) return;
  RivalKind kind = More(menus).Rivals.kinds.front();
  StepWord(kind, step);
  More(menus).Rivals.kinds = {kind};
}

Lines Entries() {
  return {
      {.label = "Match",
       .help = "Choose the mode, the level and the rivals of a game",
       .act = Open,
       .subject = static_cast<int>(MorePage::kMatch)},
      {.label = "Rivals: ",
       .value = [](MenuContext& m, int) { return RivalText(More(m).Rivals); },
       .help = "How well computer snakes play, from the next level on",
       .act = ChangeRivals},
      {.label = "Turns: ",
       .value = [](MenuContext& m, int) { return std::string{Word(More(m).Turns)}; },
       .help = "Presses between two steps: the last one counts, or they queue up",
       .act = [](MenuContext& m, LineAct a, int) { StepWord(More(m).Turns, StepOrEnter(a)); }},
      {.label = "Confirm: ",
       .value = SwitchText<&MoreState::Confirm>,
       .help = "Ask before a running game is given up [Yes/No]",
       .act = Toggle<&MoreState::Confirm>},
      {.label = "Any key: ",
       .value = SwitchText<&MoreState::AnyKey>,
       .help = "Enter, Space and the steering keys close the level screen [Yes/No]",
       .act = Toggle<&MoreState::AnyKey>},
      {.label = "Controls",
       .help = "Choose the keys that steer",
       .act = Open,
       .subject = static_cast<int>(MorePage::kControls)},
  };
}

}  // namespace

Lines MoreLines(MenuContext& /*menus*/) {
  constexpr Point kFirst{55, 205};
  constexpr int kLineStep = 20;
  Lines lines = Entries();
  Point at = kFirst;
  for (Line& line : lines) {
    line.at = at;
    at.y += kLineStep;
  }
  return lines;
}

int EntryOf(MenuContext& menus, MorePage page) {
  const Lines lines = MoreLines(menus);
  const auto found = std::find_if(lines.begin(), lines.end(), [page](const Line& line) {
    return line.act == Open && line.subject == static_cast<int>(page);
  });
  return found == lines.end() ? 1 : static_cast<int>(found - lines.begin()) + 1;
}

}  // namespace coilrun
