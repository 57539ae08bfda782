#include "menus/controls_page.h"

#include <algorithm>
#include <array>

#include "menus/key_names.h"
#include "menus/more_pages.h"

namespace coilrun {
namespace {

constexpr std::array kDirections = {Dir::kForw, Dir::kBack, Dir::kLeft, Dir::kRight};
constexpr int kPerPerson = static_cast<int>(kDirections.size());
constexpr std::array<std::string_view, kPerPerson> kNames = {"Up", "Down", "Left", "Right"};

/// Turns a person's direction into the subject of a line, and back.
int SubjectOf(int person, int direction) {
  return (person - 1) * kPerPerson + direction;
}
int PersonOf(int subject) {
  return subject / kPerPerson + 1;
}
std::size_t DirectionOf(int subject) {
  return static_cast<std::size_t>(subject % kPerPerson);
}

std::vector<int>& KeysOfLine(State& state, int subject) {
  return KeysOf(state.Keys(PersonOf(subject)), kDirections.at(DirectionOf(subject)));
}

std::string NameOfLine(int subject) {
  return std::string{kNames.at(DirectionOf(subject))};
}

bool HoldsKey(const std::vector<int>& keys, int key) {
  return std::find(keys.begin(), keys.end(), key) != keys.end();
}

/// Another line that also has one of this line's keys; -1 for none.
int RivalOf(State& state, int subject) {
  const auto& keys = KeysOfLine(state, subject);
  for (int other = 0; other < PeopleInPlay(state) * kPerPerson; ++other) {
    const auto& others = KeysOfLine(state, other);
    const bool shares =
        std::any_of(keys.begin(), keys.end(), [&](int key) { return HoldsKey(others, key); });
    if (other != subject && shares) return other;
  }
  return -1;
}

/// Relies on the lines being in the order of their subjects.
bool IsUnderCursor(const State& state, int subject) {
  return state.more.Cursor == subject + 1;
}

std::string KeysText(MenuContext& menus, int subject) {
  State& state = menus.state;
  std::string text;
  if (state.menus.awaitsKey && IsUnderCursor(state, subject)) return "press a key ...";
  for (const int key : KeysOfLine(state, subject)) {
    text += (text.empty() ? "" : ", ") + KeyName(key, state.mode.KeyboardLayout);
  }
  if (text.empty()) text = "-";
  const int rival = RivalOf(state, subject);
  if (rival < 0) return text;
  text += "   (also " + NameOfLine(rival);
  if (PersonOf(rival) != PersonOf(subject)) text += " of player " + std::to_string(PersonOf(rival));
  return text + ")";
}

TextLook LookOfKeys(MenuContext& menus, int subject) {
  return RivalOf(menus.state, subject) < 0 ? TextLook::kPlain : TextLook::kWarning;
}

void ChangeKeys(MenuContext& menus, LineAct act, int subject) {
  if (act == LineAct::kEnter) menus.state.menus.awaitsKey = true;
  if (act == LineAct::kEmpty) KeysOfLine(menus.state, subject).clear();
}

void GiveBack(MenuContext& menus, LineAct act, int /*subject*/) {
  if (act != LineAct::kEnter) return;
  for (int person = 1; person <= kMaxPeople; ++person) {
    menus.state.Keys(person) = menus.host.ShippedKeys(person);
  }
}

constexpr std::array<std::string_view, kPerPerson> kLabels = {
    "Up: ", "Down: ", "Left: ", "Right: "};
constexpr std::array<std::string_view, kMaxPeople> kHeadings = {"Player 1", "Player 2", "Player 3",
                                                                "Player 4"};

Line LineOf(int person, int direction) {
  constexpr int kLineStep = 18;
  constexpr int kBlockStep = 100;
  const int x = person <= 2 ? 55 : 325;
  const int y = 218 + kBlockStep * ((person - 1) % 2) + kLineStep * direction;
  Line line{.at = {x, y},
            .width = 265,
            .label = kLabels.at(static_cast<std::size_t>(direction)),
            .value = KeysText,
            .help = "Enter: add a key. Backspace: none. At most four, then the oldest goes",
            .act = ChangeKeys,
            .subject = SubjectOf(person, direction),
            .look = LookOfKeys};
  if (direction == 0) {
    line.heading = kHeadings.at(static_cast<std::size_t>(person - 1));
    line.headingAt = {x - 5, y - kLineStep};
  }
  return line;
}

}  // namespace

Lines ControlsLines(MenuContext& menus) {
  Lines lines;
  for (int person = 1; person <= PeopleInPlay(menus.state); ++person) {
    for (int direction = 0; direction < kPerPerson; ++direction) {
      lines.push_back(LineOf(person, direction));
    }
  }
  lines.push_back({.at = {55, 412},
                   .label = "Give back the keys that came with the game",
                   .help = "All players get the keys back that came with the game",
                   .act = GiveBack});
  return lines;
}

std::string AwaitedKeyText(int subject) {
  return "Press the key for " + NameOfLine(subject) + " (Escape: none)";
}

void BindKey(MenuContext& menus, int key) {
  if (!CanSteer(key)) return;
  State& state = menus.state;
  state.menus.awaitsKey = false;
  auto& keys = KeysOfLine(state, state.more.Cursor - 1);
  if (HoldsKey(keys, key)) return;
  if (keys.size() == SteeringKeys::kMostCodes) keys.erase(keys.begin());
  keys.push_back(key);
}

}  // namespace coilrun
