#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

#include "model/records.h"

namespace coilrun {

/// The first lines of a level file are the rows of its map; any line may also hold a key.
inline constexpr int kMapRows = 22;

enum class CellKind : std::uint8_t { kWall, kStart, kUserItem, kSpawnPoint };

/// What a word of a map row places.
struct CellCode {
  CellKind kind = CellKind::kWall;
  WallKind wall = WallKind::kNone;
  int snake = 0;    ///< number of the snake that starts here
  char letter = 0;  ///< key of the user item, upper case
};

/// The cell code that is exactly this word.
std::optional<CellCode> CodeOf(std::string_view word);

/// Where a code in this column and row (from 1) places its thing, in pixels.
Point AnchorOf(CellKind kind, int column, int row);

/// Called for each non-empty cell of a row once it is closed; false ends the scan.
using CellVisitor = std::function<bool(int column, std::string_view word)>;

/// Scans a map row: each blank closes a cell, and the last character of the line is ignored. False
/// when the visitor ended the scan.
bool ScanRow(std::string_view line, const CellVisitor& visit);

/// The keys of a level file, in the order in which they are tested on every line.
enum class LevelKey : std::uint8_t {
  kNumYellow,
  kNumRed,
  kNumBlue,
  kNumBlack,
  kNumTNT,
  kNumPower,
  kHasOpenWalls,
  kReqYellow,
  kReqRed,
  kReqBlue,
  kReqBlack,
  kReqScore,
  kBlueRate,
  kPowerRate,
  kHideCollected,
  kNextLvl,
  kLvlName,
  kTimeout,
  kSnakeStrtX,
  kSnakeStrtY,
  kAIS,
  kBkgPic,
  kRequires,
  kMusicFile,
  kIncrease,
  kIncrBy,
  kGSpeed,
  kMaxSpd,
  kMinSpd,
  kSet,
  kLet
};

/// How the text after a key is read.
enum class ValueKind : std::uint8_t {
  kInteger,   ///< 16 bits, halves to even
  kLong,      ///< 32 bits, halves to even
  kReal,      ///< a number, not rounded
  kTrueFlag,  ///< set by exactly "True"
  kBoolean,   ///< "True", "False" in any letter case, or a number
  kText,      ///< as it stands
  kName,      ///< without leading blanks
  kUserItem   ///< letter, one character, name or type
};

struct KeyDef {
  LevelKey key;
  std::string_view text;
  ValueKind kind;
  bool skipsOne = false;  ///< the first character after the key is not part of the value
};

/// All keys; slot n holds the key with number n.
std::span<const KeyDef> LevelKeys();
const KeyDef& DefOf(LevelKey key);

/// True when the line begins with the key.
bool HasKey(const KeyDef& def, std::string_view line);

/// A value; its kind says which fields are filled.
struct LevelValue {
  double number = 0;
  bool flag = false;
  std::string_view text = {};
  char letter = 0;  ///< user item lines: the letter in upper case; 0 when the line is ignored
};

/// Reads the value from a line that has the key; nothing when the value makes the level unloadable.
std::optional<LevelValue> ReadValue(const KeyDef& def, std::string_view line);

}  // namespace coilrun
