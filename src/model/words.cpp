#include "model/words.h"

#include <algorithm>
#include <array>

#include "model/numbers.h"

namespace coilrun {
namespace {

using std::string_view;

constexpr std::array<string_view, 13> kDirWords = {
    "", "Forw", "Back", "Left", "Right", "FL", "FR", "BL", "BR", "LF", "LB", "RF", "RB"};
constexpr std::array<string_view, 8> kWallWords = {"", "v", "h", "v_l", "v_r", "h_t", "h_b", "s"};
constexpr std::array<string_view, 3> kModeWords = {"", "DM", "NDM"};
constexpr std::array<string_view, 4> kActionWords = {"", "cycle", "-", "+"};
constexpr std::array<string_view, 4> kTargetWords = {"", "PlayerName", "Cheat", "ScoreName"};
constexpr std::array<string_view, 2> kLayoutWords = {"US", "DE"};
constexpr std::array<string_view, 7> kUserItemWords = {
    "", "wall_", "wall", "wall_no_tnt", "ani_wall_", "ani_wall", "ani_wall_no_tnt"};
constexpr string_view kJustEaten = "new";
constexpr string_view kStillStart = "wall";
constexpr string_view kMovingStart = "ani_wall";

template <typename Enum, std::size_t N>
std::optional<Enum> Find(const std::array<string_view, N>& words, string_view word) {
  const auto* const found = std::find(words.begin(), words.end(), word);
  if (found == words.end()) return std::nullopt;
  return static_cast<Enum>(found - words.begin());
}

}  // namespace

std::string_view Word(Dir dir) {
  return kDirWords.at(static_cast<std::size_t>(dir));
}
std::string_view Word(WallKind kind) {
  return kWallWords.at(static_cast<std::size_t>(kind));
}
std::string_view Word(GameMode mode) {
  return kModeWords.at(static_cast<std::size_t>(mode));
}
std::string_view Word(MenuAction action) {
  return kActionWords.at(static_cast<std::size_t>(action));
}
std::string_view Word(InputTarget target) {
  return kTargetWords.at(static_cast<std::size_t>(target));
}
std::string_view Word(KeyboardLayout layout) {
  return kLayoutWords.at(static_cast<std::size_t>(layout));
}
std::string_view Word(UserItemType type) {
  return kUserItemWords.at(static_cast<std::size_t>(type));
}
std::string Word(SpawnUse use) {
  if (use.kind == SpawnUse::Kind::kTaken) return std::to_string(use.slot);
  return std::string{use.kind == SpawnUse::Kind::kJustEaten ? kJustEaten : ""};
}

template <>
std::optional<Dir> FromWord<Dir>(std::string_view word) {
  return Find<Dir>(kDirWords, word);
}
template <>
std::optional<WallKind> FromWord<WallKind>(std::string_view word) {
  return Find<WallKind>(kWallWords, word);
}
template <>
std::optional<GameMode> FromWord<GameMode>(std::string_view word) {
  return Find<GameMode>(kModeWords, word);
}
template <>
std::optional<MenuAction> FromWord<MenuAction>(std::string_view word) {
  return Find<MenuAction>(kActionWords, word);
}
template <>
std::optional<InputTarget> FromWord<InputTarget>(std::string_view word) {
  return Find<InputTarget>(kTargetWords, word);
}

template <>
KeyboardLayout Meaning<KeyboardLayout>(std::string_view text) {
  return Find<KeyboardLayout>(kLayoutWords, text).value_or(KeyboardLayout::kUs);
}

template <>
UserItemType Meaning<UserItemType>(std::string_view text) {
  if (const auto type = Find<UserItemType>(kUserItemWords, text)) return *type;
  if (text.starts_with(kStillStart)) return UserItemType::kPicture;
  return text.starts_with(kMovingStart) ? UserItemType::kMovingPicture : UserItemType::kNone;
}

template <>
SpawnUse Meaning<SpawnUse>(std::string_view text) {
  if (text == kJustEaten) return {SpawnUse::Kind::kJustEaten, {}};
  const double number = LeadingNumber(text);
  if (number == 0) return {};
  return SpawnUse::TakenBy(ToInt16(number).value_or(0));
}

}  // namespace coilrun
