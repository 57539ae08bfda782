#include "content/level_format.h"

#include <algorithm>
#include <array>

#include "model/numbers.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

constexpr std::array<KeyDef, 31> kKeys = {{
    {LevelKey::kNumYellow, "numYellow=", ValueKind::kInteger},
    {LevelKey::kNumRed, "numRed=", ValueKind::kInteger},
    {LevelKey::kNumBlue, "numBlue=", ValueKind::kInteger},
    {LevelKey::kNumBlack, "numBlack=", ValueKind::kInteger},
    {LevelKey::kNumTNT, "numTNT=", ValueKind::kInteger},
    {LevelKey::kNumPower, "numPower=", ValueKind::kInteger},
    {LevelKey::kHasOpenWalls, "hasOpenWalls=", ValueKind::kTrueFlag},
    {LevelKey::kReqYellow, "reqYellow=", ValueKind::kReal},
    {LevelKey::kReqRed, "reqRed=", ValueKind::kReal},
    {LevelKey::kReqBlue, "reqBlue=", ValueKind::kReal},
    {LevelKey::kReqBlack, "reqBlack=", ValueKind::kReal},
    {LevelKey::kReqScore, "reqScore=", ValueKind::kInteger},
    {LevelKey::kBlueRate, "blueRate=", ValueKind::kReal},
    {LevelKey::kPowerRate, "powerRate=", ValueKind::kInteger},
    {LevelKey::kHideCollected, "HideCollected=", ValueKind::kTrueFlag},
    {LevelKey::kNextLvl, "nextLvl=", ValueKind::kText, true},
    {LevelKey::kLvlName, "lvlName=", ValueKind::kText, true},
    {LevelKey::kTimeout, "Timeout=", ValueKind::kReal, true},
    {LevelKey::kSnakeStrtX, "SnakeStrtX=", ValueKind::kLong, true},
    {LevelKey::kSnakeStrtY, "SnakeStrtY=", ValueKind::kLong, true},
    {LevelKey::kAIS, "AIS=", ValueKind::kReal},
    {LevelKey::kBkgPic, "BkgPic=", ValueKind::kName},
    {LevelKey::kRequires, "Requires=", ValueKind::kName},
    {LevelKey::kMusicFile, "MusicFile=", ValueKind::kName},
    {LevelKey::kIncrease, "increase=", ValueKind::kBoolean},
    {LevelKey::kIncrBy, "incrBy=", ValueKind::kReal},
    {LevelKey::kGSpeed, "gSpeed=", ValueKind::kInteger},
    {LevelKey::kMaxSpd, "maxSpd=", ValueKind::kReal},
    {LevelKey::kMinSpd, "minSpd=", ValueKind::kReal},
    {LevelKey::kSet, "set:", ValueKind::kUserItem},
    {LevelKey::kLet, "let:", ValueKind::kUserItem},
}};

struct WallCode {
  char word;
  WallKind kind;
};

constexpr std::array<WallCode, 7> kWallCodes = {{{'|', WallKind::kV},
                                                 {'-', WallKind::kH},
                                                 {'<', WallKind::kVL},
                                                 {'>', WallKind::kVR},
                                                 {'^', WallKind::kHT},
                                                 {'.', WallKind::kHB},
                                                 {'+', WallKind::kS}}};

/// Snakes 1 to 16 start where the map has these words.
constexpr std::string_view kStartCodes = "S123456789ABCDEF";

bool IsMapLetter(char character) {
  return 'a' <= character && character <= 'z';
}

std::optional<LevelValue> NumberValue(std::optional<int> number) {
  if (!number) return std::nullopt;
  return LevelValue{.number = static_cast<double>(*number)};
}

/// "set:" and "let:": the letter, one character that is ignored, the text.
std::optional<LevelValue> UserItemValue(std::string_view rest) {
  constexpr std::size_t kTextAt = 2;
  if (rest.size() < kTextAt) return std::nullopt;
  const std::string_view text = rest.substr(kTextAt);
  if (text.empty() || !IsMapLetter(rest[0])) return LevelValue{};
  return LevelValue{.text = text, .letter = UpperCase(rest[0])};
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

}  // namespace

std::optional<CellCode> CodeOf(std::string_view word) {
  if (word.size() != 1) return std::nullopt;
  const char code = word[0];
  for (const WallCode& wall : kWallCodes) {
    if (wall.word == code) return CellCode{.kind = CellKind::kWall, .wall = wall.kind};
  }
  const std::size_t snake = kStartCodes.find(code);
  if (snake != kStartCodes.npos) {
    return CellCode{.kind = CellKind::kStart, .snake = static_cast<int>(snake) + 1};
  }
  if (IsMapLetter(code)) return CellCode{.kind = CellKind::kUserItem, .letter = UpperCase(code)};
  if (code == '*') return CellCode{.kind = CellKind::kSpawnPoint};
  return std::nullopt;
}

Point AnchorOf(CellKind kind, int column, int row) {
  constexpr int kFarthestColumn = 100'000'000;
  const bool centred = kind == CellKind::kStart || kind == CellKind::kSpawnPoint;
  const int offset = centred ? kCell / 2 : 0;
  return {kCell * std::min(column, kFarthestColumn) - offset, kCell * row - offset};
}

bool ScanRow(std::string_view line, const CellVisitor& visit) {
  const std::string_view examined = line.size() > 1 ? line.substr(0, line.size() - 1) : line;
  int column = 0;
  std::size_t start = 0;
  for (std::size_t blank = examined.find(' '); blank != examined.npos;
       blank = examined.find(' ', start)) {
    ++column;
    if (blank > start && !visit(column, examined.substr(start, blank - start))) return false;
    start = blank + 1;
  }
  return true;
}

std::span<const KeyDef> LevelKeys() {
  return kKeys;
}

const KeyDef& DefOf(LevelKey key) {
  return kKeys.at(static_cast<std::size_t>(key));
}

bool HasKey(const KeyDef& def, std::string_view line) {
  return line.starts_with(def.text);
}

std::optional<LevelValue> ReadValue(const KeyDef& def, std::string_view line) {
  std::string_view rest = line.substr(def.text.size());
  if (def.skipsOne) {
    if (rest.empty()) return std::nullopt;
    rest.remove_prefix(1);
  }
  switch (def.kind) {
    case ValueKind::kInteger:
      return NumberValue(ToInt16(LeadingNumber(rest)));
    case ValueKind::kLong:
      return NumberValue(ToInt32(LeadingNumber(rest)));
    case ValueKind::kReal:
      return LevelValue{.number = LeadingNumber(rest)};
    case ValueKind::kTrueFlag:
      return LevelValue{.flag = rest == "True"};
    case ValueKind::kText:
      return LevelValue{.text = rest};
    case ValueKind::kName:
      return LevelValue{.text = WithoutLeadingBlanks(rest)};
    case ValueKind::kUserItem:
      return UserItemValue(rest);
    case ValueKind::kBoolean:
      break;
  }
  const auto flag = ToBoolean(rest);
  if (!flag) return std::nullopt;
  return LevelValue{.flag = *flag};
}

}  // namespace coilrun
