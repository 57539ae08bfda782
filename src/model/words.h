#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "model/saturating.h"
#include "model/word_table.h"

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
template <>
inline constexpr WordList<13> kWords<Dir>{"",   "Forw", "Back", "Left", "Right", "FL", "FR",
                                          "BL", "BR",   "LF",   "LB",   "RF",    "RB"};
inline constexpr int kDirs = 13;

/// Kinds of walls, by the picture that they show.
enum class WallKind : std::uint8_t { kNone, kV, kH, kVL, kVR, kHT, kHB, kS };
template <>
inline constexpr WordList<8> kWords<WallKind>{"", "v", "h", "v_l", "v_r", "h_t", "h_b", "s"};

/// The six kinds of items, in the order in which they are eaten and placed.
enum class ItemKind : std::uint8_t { kYellow, kRed, kBlue, kBlack, kTnt, kPower };
inline constexpr int kItemKinds = 6;

enum class GameMode : std::uint8_t { kSingle, kDeathmatch, kNetDeathmatch };
template <>
inline constexpr WordList<3> kWords<GameMode>{"", "DM", "NDM"};

/// What the options page is asked to do with the line under its cursor.
enum class MenuAction : std::uint8_t { kNone, kCycle, kMinus, kPlus };
template <>
inline constexpr WordList<4> kWords<MenuAction>{"", "cycle", "-", "+"};

/// What typed characters edit.
enum class InputTarget : std::uint8_t { kNone, kPlayerName, kCheat, kScoreName };
template <>
inline constexpr WordList<4> kWords<InputTarget>{"", "PlayerName", "Cheat", "ScoreName"};

/// Which keyboard gives typed text its characters.
enum class KeyboardLayout : std::uint8_t { kUs, kDe };
template <>
inline constexpr WordList<2> kWords<KeyboardLayout>{"US", "DE"};

/// What a user item is: a mere picture, a wall that TNT blows up, or a wall that withstands TNT,
/// each still or moving. `kNone` is neither drawn nor met.
enum class UserItemType : std::uint8_t {
  kNone,
  kPicture,
  kWall,
  kHardWall,
  kMovingPicture,
  kMovingWall,
  kMovingHardWall
};
template <>
inline constexpr WordList<7> kWords<UserItemType>{
    "", "wall_", "wall", "wall_no_tnt", "ani_wall_", "ani_wall", "ani_wall_no_tnt"};

/// Who holds a spawn point.
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

/// "": free; a slot number: taken; "new": its item was just eaten.
std::string Word(SpawnUse use);

/// The value that any text stands for, where a value may be written freely.
template <typename T>
T Meaning(std::string_view text);
/// Everything but exactly "DE" is "US".
template <>
KeyboardLayout Meaning<KeyboardLayout>(std::string_view text);
/// Walls are exact words; other words that begin like theirs are pictures.
template <>
UserItemType Meaning<UserItemType>(std::string_view text);
/// Apart from "new", a text leaves the point free unless it begins with a number other than 0.
template <>
SpawnUse Meaning<SpawnUse>(std::string_view text);

}  // namespace coilrun
