#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/saturating.h"

namespace coilrun {

/// Where a head goes, or what a body cell shows: a direction, or a turn code of the direction in
/// which the snake entered the cell and the one in which it left ("FL": came up, went left).
/// `kNone` stands still.
enum class Dir : std::uint8_t {
  kNone,
  kForw,
  kBack,
  kLeft,
  kRight,
  kFL,
  kFR,
  kBL,
  kBR,
  kLF,
  kLB,
  kRF,
  kRB
};
inline constexpr int kDirs = 13;

/// Kinds of walls by the picture that they show.
enum class WallKind : std::uint8_t { kNone, kV, kH, kVL, kVR, kHT, kHB, kS };

/// The six kinds of items, in the order in which they are eaten and placed.
enum class ItemKind : std::uint8_t { kYellow, kRed, kBlue, kBlack, kTnt, kPower };
inline constexpr int kItemKinds = 6;

enum class GameMode : std::uint8_t { kSingle, kDeathmatch, kNetDeathmatch };

/// What the options page is asked to do with the line under its cursor.
enum class MenuAction : std::uint8_t { kNone, kCycle, kMinus, kPlus };

/// What typed characters edit.
enum class InputTarget : std::uint8_t { kNone, kPlayerName, kCheat, kScoreName };

/// Where the keys of typed text have their characters from.
enum class KeyboardLayout : std::uint8_t { kUs, kDe };

/// What a user item is: a still or a moving picture, drawn alone, or a wall that TNT blows, or one
/// that it does not. `kNone` is neither drawn nor met.
enum class UserItemType : std::uint8_t {
  kNone,
  kPicture,
  kWall,
  kHardWall,
  kMovingPicture,
  kMovingWall,
  kMovingHardWall
};

/// Who has a spawn point.
struct SpawnUse {
  enum class Kind : std::uint8_t { kFree, kTaken, kJustEaten };

  Kind kind = Kind::kFree;
  Int16 slot;  ///< of the item that has taken it

  static SpawnUse TakenBy(int slot) { return {Kind::kTaken, slot}; }
};

constexpr bool IsMultiplayer(GameMode mode) {
  return mode != GameMode::kSingle;
}
constexpr bool IsDirection(Dir dir) {
  return dir >= Dir::kForw && dir <= Dir::kRight;
}
constexpr bool IsTurn(Dir dir) {
  return dir >= Dir::kFL;
}
constexpr bool IsStill(UserItemType type) {
  return type >= UserItemType::kPicture && type <= UserItemType::kHardWall;
}
constexpr bool IsMoving(UserItemType type) {
  return type >= UserItemType::kMovingPicture;
}

/// The words as files, scripts and traces write them; "" for `kNone`.
std::string_view Word(Dir dir);
std::string_view Word(WallKind kind);
std::string_view Word(GameMode mode);
std::string_view Word(MenuAction action);
std::string_view Word(InputTarget target);
std::string_view Word(KeyboardLayout layout);
std::string_view Word(UserItemType type);
/// "" free, a slot number: taken, "new": its item was just eaten.
std::string Word(SpawnUse use);

/// The value with exactly this word: FromWord<Dir>("Left").
template <typename Enum>
std::optional<Enum> FromWord(std::string_view word);
template <>
std::optional<Dir> FromWord<Dir>(std::string_view word);
template <>
std::optional<WallKind> FromWord<WallKind>(std::string_view word);
template <>
std::optional<GameMode> FromWord<GameMode>(std::string_view word);
template <>
std::optional<MenuAction> FromWord<MenuAction>(std::string_view word);
template <>
std::optional<InputTarget> FromWord<InputTarget>(std::string_view word);

/// What any text at all stands for where a value is written freely.
template <typename T>
T Meaning(std::string_view text);
/// Every layout but exactly "DE" is "US".
template <>
KeyboardLayout Meaning<KeyboardLayout>(std::string_view text);
/// Walls are exact words; other words that begin like theirs are pictures.
template <>
UserItemType Meaning<UserItemType>(std::string_view text);
/// A text that begins with no number, or with 0, leaves the point free.
template <>
SpawnUse Meaning<SpawnUse>(std::string_view text);

}  // namespace coilrun
