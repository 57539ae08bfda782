#include "menus/score_name.h"

#include <string>

namespace coilrun {
namespace {

std::string& NameOfEntry(State& state) {
  return state.HiScore(state.menus.EnteredPlace).Name;
}

}  // namespace

bool EditsScoreName(const State& state) {
  return state.menus.TypingActive && state.menus.InputTarget == InputTarget::kScoreName &&
         state.HiScore.Holds(state.menus.EnteredPlace);
}

void TypeScoreName(State& state, std::string_view typed) {
  std::string& name = NameOfEntry(state);
  if (name == kUnknownName && !typed.empty()) name.clear();
  name = name.append(typed).substr(0, kLongestName);
}

void ShortenScoreName(State& state) {
  std::string& name = NameOfEntry(state);
  if (!name.empty()) name.pop_back();
}

void StoreScoreName(Game& game) {
  State& state = game.state;
  std::string& name = NameOfEntry(state);
  if (name.empty()) name = kUnknownName;
  state.Snakes(kPlayer).Name = name;
  state.menus.EditsName = false;
  game.host.SaveSettings();
}

}  // namespace coilrun
