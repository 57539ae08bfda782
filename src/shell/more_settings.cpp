#include "shell/more_settings.h"

#include <array>
#include <string>
#include <type_traits>
#include <vector>

#include "model/numbers.h"

namespace coilrun {
namespace {

constexpr std::string_view kMore = "More";
constexpr std::string_view kKeys = "Keys";
constexpr std::array kDirections = {Dir::kForw, Dir::kBack, Dir::kLeft, Dir::kRight};

/// Whole numbers outside these are not used.
struct Bounds {
  int lowest;
  int highest;
};

template <typename Enum>
requires std::is_enum_v<Enum> std::string TextOf(Enum value) {
  return std::string{Word(value)};
}
std::string TextOf(bool value) {
  return BooleanText(value);
}
std::string TextOf(Int16 value) {
  return std::to_string(int{value});
}
std::string TextOf(const RivalList& value) {
  return RivalText(value);
}

template <typename Enum>
requires std::is_enum_v<Enum>
void Read(Enum& value, const std::string& text, Bounds /*bounds*/) {
  value = FromWord<Enum>(text).value_or(value);
}
void Read(bool& value, const std::string& text, Bounds /*bounds*/) {
  value = ToBoolean(text).value_or(value);
}
void Read(Int16& value, const std::string& text, Bounds bounds) {
  const auto number = WholeNumber(text);
  const bool isUsable = number && *number == RoundHalfEven(*number) && *number >= bounds.lowest &&
                        *number <= bounds.highest;
  if (isUsable) value = static_cast<int>(*number);
}
void Read(RivalList& value, const std::string& text, Bounds /*bounds*/) {
  const auto kind = FromWord<RivalKind>(text);
  if (kind) value.kinds = {*kind};
}

/// The one list of the settings in [More].
template <typename More, typename Visit>
void VisitMoreSettings(More& more, const Visit& visit) {
  constexpr Bounds kNone{0, 0};
  visit("Turns", more.Turns, kNone);
  visit("Motion", more.Motion, kNone);
  visit("Effects", more.Effects, kNone);
  visit("Confirm", more.Confirm, kNone);
  visit("AnyKey", more.AnyKey, kNone);
  visit("AskName", more.AskName, kNone);
  visit("Attract", more.Attract, kNone);
  visit("Rivals", more.Rivals, kNone);
  visit("Players", more.Players, Bounds{1, kMaxPeople});
  visit("Record", more.Record, kNone);
  visit("KeepReplays", more.KeepReplays, Bounds{0, 1000});
}

std::string KeyName(int person, Dir dir) {
  constexpr std::array<std::string_view, 4> kNames = {"Up", "Down", "Left", "Right"};
  return std::to_string(person).append(
      kNames.at(static_cast<std::size_t>(dir) - static_cast<std::size_t>(Dir::kForw)));
}

void ReadSections(State& state, const SettingsStore& store) {
  VisitMoreSettings(state.more, [&store](std::string_view key, auto& value, Bounds bounds) {
    if (const auto text = store.Get(kMore, key)) Read(value, *text, bounds);
  });
  for (int person = 1; person <= kMaxPeople; ++person) {
    for (const Dir dir : kDirections) {
      const auto text = store.Get(kKeys, KeyName(person, dir));
      const auto codes = text ? KeyCodesFromText(*text) : std::nullopt;
      if (codes) KeysOf(state.Keys(person), dir) = *codes;
    }
  }
}

}  // namespace

void LoadMoreSettings(State& state, const SettingsStore& store) {
  const RunOptions& forRun = state.more.forRun;
  if (!forRun.isClassic) ReadSections(state, store);
  state.more.Rivals = forRun.rivals.value_or(state.more.Rivals);
}

void SaveMoreSettings(const State& state, const MoreSettings& before, SettingsStore& store) {
  if (state.more.forRun.isClassic) return;
  std::vector<std::string> oldTexts;
  VisitMoreSettings(before.more, [&](std::string_view /*key*/, const auto& value,
                                     Bounds /*bounds*/) { oldTexts.push_back(TextOf(value)); });
  std::size_t index = 0;
  VisitMoreSettings(state.more, [&](std::string_view key, const auto& value, Bounds /*bounds*/) {
    const std::string text = TextOf(value);
    if (text != oldTexts.at(index++)) store.Set(kMore, key, text);
  });
  for (int person = 1; person <= kMaxPeople; ++person) {
    for (const Dir dir : kDirections) {
      const auto& codes = KeysOf(state.Keys(person), dir);
      if (codes == KeysOf(before.keys(person), dir)) continue;
      store.Set(kKeys, KeyName(person, dir), KeyCodesText(codes));
    }
  }
  store.Save();
}

SteeringKeys ShippedKeys(int person, const SettingsStore& store) {
  SteeringKeys keys = BuiltInKeys(person);
  for (const Dir dir : kDirections) {
    const auto text = store.Shipped(kKeys, KeyName(person, dir));
    const auto codes = text ? KeyCodesFromText(*text) : std::nullopt;
    if (codes) KeysOf(keys, dir) = *codes;
  }
  return keys;
}

}  // namespace coilrun
