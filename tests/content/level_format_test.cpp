#include "content/level_format.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "content/lines.h"

namespace coilrun {
namespace {

std::string Cells(std::string_view line) {
  std::string cells;
  ScanRow(line, [&](int column, std::string_view word) {
    cells.append(std::to_string(column)).append(":").append(word).append(" ");
    return true;
  });
  return cells;
}

TEST(MapRow, ClosesACellAtEachBlankButNotAtTheLastCharacter) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"", ""},
      {"|", ""},
      {" ", ""},
      {"| | ", "1:| "},
      {"| | |", "1:| 2:| "},
      {"  S ", ""},
      {"  S  ", "3:S "},
      {"|  word .", "1:| 3:word "},
      {"\t x", "1:\t "},
  };
  for (const auto& [line, cells] : rows) EXPECT_EQ(Cells(line), cells) << '"' << line << '"';
}

TEST(MapRow, EndsWhenTheVisitorSaysSo) {
  int visited = 0;
  EXPECT_FALSE(ScanRow("| | | .", [&](int, std::string_view) { return ++visited < 2; }));
  EXPECT_EQ(visited, 2);
}

TEST(CellCodes, AreSingleExactCharacters) {
  EXPECT_EQ(CodeOf("<")->wall, WallKind::kVL);
  EXPECT_EQ(CodeOf(".")->wall, WallKind::kHB);
  EXPECT_EQ(CodeOf("S")->snake, 1);
  EXPECT_EQ(CodeOf("9")->snake, 10);
  EXPECT_EQ(CodeOf("A")->snake, 11);
  EXPECT_EQ(CodeOf("F")->snake, 16);
  EXPECT_EQ(CodeOf("v")->kind, CellKind::kUserItem);
  EXPECT_EQ(CodeOf("v")->letter, 'V');
  EXPECT_EQ(CodeOf("*")->kind, CellKind::kSpawnPoint);
  for (const char* word : {"", "G", "0", "||", "_", "\xE4"}) EXPECT_FALSE(CodeOf(word)) << word;
}

TEST(Anchors, OfStartsAndSpawnPointsLieHalfACellBefore) {
  EXPECT_EQ(AnchorOf(CellKind::kWall, 3, 2), (Point{60, 40}));
  EXPECT_EQ(AnchorOf(CellKind::kUserItem, 3, 2), (Point{60, 40}));
  EXPECT_EQ(AnchorOf(CellKind::kStart, 3, 1), (Point{50, 10}));
  EXPECT_EQ(AnchorOf(CellKind::kSpawnPoint, 1, 1), (Point{10, 10}));
}

struct ValueCase {
  LevelKey key;
  std::string line;
  std::optional<double> number;  ///< nothing: the level cannot be loaded
};

TEST(Values, AreReadAsTheirKindSays) {
  const std::vector<ValueCase> cases = {
      {LevelKey::kNumRed, "numRed=2.5", 2},
      {LevelKey::kNumRed, "numRed=3.5", 4},
      {LevelKey::kNumRed, "numRed=1 2", 12},
      {LevelKey::kNumRed, "numRed=12abc", 12},
      {LevelKey::kNumRed, "numRed=abc", 0},
      {LevelKey::kNumRed, "numRed=40000", std::nullopt},
      {LevelKey::kNumRed, "numRed=-32768.5", -32768},
      {LevelKey::kReqYellow, "reqYellow=2.5e1", 25},
      {LevelKey::kTimeout, "Timeout= 90", 90},
      {LevelKey::kTimeout, "Timeout=90", 0},
      {LevelKey::kTimeout, "Timeout=120", 20},
      {LevelKey::kTimeout, "Timeout=", std::nullopt},
      {LevelKey::kSnakeStrtX, "SnakeStrtX= 70000", 70000},
      {LevelKey::kSnakeStrtX, "SnakeStrtX= 3e9", std::nullopt},
      {LevelKey::kSnakeStrtY, "SnakeStrtY=", std::nullopt},
  };
  for (const ValueCase& each : cases) {
    const auto value = ReadValue(DefOf(each.key), each.line);
    EXPECT_EQ(value.has_value(), each.number.has_value()) << each.line;
    if (!value || !each.number) continue;
    EXPECT_EQ(value->number, *each.number) << each.line;
  }
}

TEST(Values, OfFlagsAndBooleansDifferInWhatTheyTake) {
  EXPECT_TRUE(ReadValue(DefOf(LevelKey::kHasOpenWalls), "hasOpenWalls=True")->flag);
  for (const char* line : {"hasOpenWalls=true", "hasOpenWalls= True", "hasOpenWalls=True "}) {
    EXPECT_FALSE(ReadValue(DefOf(LevelKey::kHasOpenWalls), line)->flag) << line;
  }
  EXPECT_TRUE(ReadValue(DefOf(LevelKey::kIncrease), "increase=TRUE")->flag);
  EXPECT_TRUE(ReadValue(DefOf(LevelKey::kIncrease), "increase=1")->flag);
  EXPECT_FALSE(ReadValue(DefOf(LevelKey::kIncrease), "increase=0")->flag);
  EXPECT_FALSE(ReadValue(DefOf(LevelKey::kIncrease), "increase=yes"));
}

TEST(Values, OfTextsKeepOrLoseTheirLeadingBlanks) {
  EXPECT_EQ(ReadValue(DefOf(LevelKey::kLvlName), "lvlName=Title")->text, "itle");
  EXPECT_EQ(ReadValue(DefOf(LevelKey::kLvlName), "lvlName=  Title")->text, " Title");
  EXPECT_EQ(ReadValue(DefOf(LevelKey::kBkgPic), "BkgPic=  a b.bmp ")->text, "a b.bmp ");
  EXPECT_EQ(ReadValue(DefOf(LevelKey::kBkgPic), "BkgPic=   ")->text, "");
}

TEST(UserItemLines, NeedALowerCaseLetterAndAText) {
  const KeyDef& set = DefOf(LevelKey::kSet);
  EXPECT_EQ(ReadValue(set, "set:b=x.bmp")->letter, 'B');
  EXPECT_EQ(ReadValue(set, "set:b=x.bmp")->text, "x.bmp");
  for (const char* ignored : {"set:b ", "set:B x", "set:1 x"}) {
    EXPECT_EQ(ReadValue(set, ignored)->letter, 0) << ignored;
  }
  for (const char* fatal : {"set:", "set:b"}) EXPECT_FALSE(ReadValue(set, fatal)) << fatal;
}

TEST(Lines, EndWithCrLfOrLfOrTheText) {
  const std::vector<std::pair<std::string, std::vector<std::string>>> texts = {
      {"", {}},
      {"a", {"a"}},
      {"a\r\nb\nc\r\n", {"a", "b", "c"}},
      {"\n\r\n\n", {"", "", ""}},
      {"a\rb\n\r", {"a\rb", "\r"}},
  };
  for (const auto& [text, expected] : texts) {
    std::vector<std::string> lines;
    LineReader reader(text);
    while (const auto line = reader.Next()) lines.emplace_back(*line);
    EXPECT_EQ(lines, expected);
  }
}

}  // namespace
}  // namespace coilrun
