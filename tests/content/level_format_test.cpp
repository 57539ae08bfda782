#include "content/level_format.h"

#include <sstream>
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
  using Row = std::pair<const char*, const char*>;
  const Row rows[] = {{"", ""},
                      {"|", ""},
                      {" ", ""},
                      {"| | ", "1:| "},
                      {"| | |", "1:| 2:| "},
                      {"  S ", ""},
                      {"  S  ", "3:S "},
                      {"|  word .", "1:| 3:word "},
                      {"\t x", "1:\t "}};
  for (const auto& [line, cells] : rows) EXPECT_EQ(Cells(line), cells) << '"' << line << '"';
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

/// The fields that the value of a line with a key fills, as text.
std::string ValueIn(const std::string& line) {
  for (const KeyDef& def : LevelKeys()) {
    if (!HasKey(def, line)) continue;
    const auto value = ReadValue(DefOf(def.key), line);
    if (!value) return "fatal";
    std::ostringstream text;
    if (value->letter != 0) text << value->letter << " is ";
    if (value->number != 0) text << value->number;
    text << value->text << (value->flag ? "true" : "");
    return text.str();
  }
  return "no key";
}

TEST(Values, AreReadAsTheirKindSays) {
  using Row = std::pair<const char*, const char*>;
  const Row rows[] = {{"numRed=2.5", "2"},
                      {"numRed=3.5", "4"},
                      {"numRed=1 2", "12"},
                      {"numRed=12abc", "12"},
                      {"numRed=abc", ""},
                      {"numRed=40000", "fatal"},
                      {"numRed=-32768.5", "-32768"},
                      {"numred=1", "no key"},
                      {"reqYellow=2.5e1", "25"},
                      {"Timeout= 90", "90"},
                      {"Timeout=120", "20"},
                      {"Timeout=", "fatal"},
                      {"SnakeStrtX= 70000", "70000"},
                      {"SnakeStrtX= 3e9", "fatal"},
                      {"hasOpenWalls=True", "true"},
                      {"hasOpenWalls=true", ""},
                      {"hasOpenWalls=True ", ""},
                      {"increase=TRUE", "true"},
                      {"increase=1", "true"},
                      {"increase=0", ""},
                      {"increase=yes", "fatal"},
                      {"lvlName=  Title", " Title"},
                      {"BkgPic=  a b.bmp ", "a b.bmp "},
                      {"BkgPic=   ", ""},
                      {"set:b=x.bmp", "B is x.bmp"},
                      {"set:b ", ""},
                      {"set:B x", ""},
                      {"set:{ x", ""},
                      {"set:", "fatal"},
                      {"set:b", "fatal"}};
  for (const auto& [line, value] : rows) EXPECT_EQ(ValueIn(line), value) << line;
}

TEST(Lines, EndWithCrLfOrLfOrTheText) {
  const std::vector<std::pair<std::string, std::vector<std::string>>> texts = {
      {"", {}},
      {"a", {"a"}},
      {"a\r\nb\nc\r\n", {"a", "b", "c"}},
      {"\n\r\n\n", {"", "", ""}},
      {"a\rb\n\r", {"a\rb", "\r"}}};
  for (const auto& [text, expected] : texts) {
    std::vector<std::string> lines;
    LineReader reader(text);
    while (const auto line = reader.Next()) lines.emplace_back(*line);
    EXPECT_EQ(lines, expected);
  }
}

}  // namespace
}  // namespace coilrun
