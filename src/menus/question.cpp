#include "menus/question.h"

namespace coilrun {

bool AsksFirst(State& state) {
  MenuState& menus = state.menus;
  if (!state.more.Confirm || state.shell.NoGameRunning) return false;
  menus.asked = !menus.asked;
  if (!menus.asked) return false;
  menus.StatusText = "Press Enter again to give up the running game";
  menus.statusHeld = true;
  return true;
}

void TakeQuestionBack(MenuState& menus) {
  menus.asked = false;
  menus.statusHeld = false;
}

}  // namespace coilrun
