#include "model/words.h"

#include <algorithm>
#include <array>

namespace coilrun {
namespace {

using std::string_view;

constexpr std::array<string_view, 13> kDirWords = {
    "", "Forw", "Back", "Left", "Right", "FL", "FR", "BL", "BR", "LF", "LB", "RF", "RB"};
constexpr std::array<string_view, 8> kWallWords = {"", "v", "h", "v_l", "v_r", "h_t", "h_b", "s"};
constexpr std::array<string_view, 3> kModeWords = {"", "DM", "NDM"};
constexpr std::array<string_view, 4> kActionWords = {"", "cycle", "-", "+"};
constexpr std::array<string_view, 4> kTargetWords = {"", "PlayerName", "Cheat", "ScoreName"};

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

}  // namespace coilrun
