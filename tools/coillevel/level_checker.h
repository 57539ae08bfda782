#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "content/level_format.h"
#include "field_check.h"
#include "finding.h"
#include "pictures.h"
#include "wall_gaps.h"

namespace coilrun {

/// Reads a level as the game does and finds what the game refuses, ignores or reads differently
/// from how it looks, and what makes a level unfair or unsightly although it loads.
class LevelChecker {
 public:
  explicit LevelChecker(const Pictures& pictures) : pictures_(pictures) {}

  /// All findings, by line.
  std::vector<Finding> Check(std::string_view text);

 private:
  void CheckLines(std::string_view text);
  void CheckRow(std::string_view line, bool isKeyLine);
  void CheckCell(int column, std::string_view word, bool isKeyLine);
  /// Finds a line below the map that looks like a row of it.
  void CheckRowBelow(std::string_view line);
  void CheckOpenEnd(std::string_view line);
  void NoteStart(int snake, std::string_view word);
  void Count(CellKind kind, char letter);
  const KeyDef* CheckKey(std::string_view line);
  void CheckValue(const KeyDef& def, std::string_view line, const LevelValue& value);
  void CheckNumber(const KeyDef& def, std::string_view rest, const LevelValue& value);
  void CheckRange(const KeyDef& def, double number);
  void CheckName(const KeyDef& def, std::string_view text);
  void CheckUserItem(const KeyDef& def, const LevelValue& value);
  void CheckNoKey(std::string_view line);
  void CheckItemCounts();
  void CheckLetters();
  void CheckStarts();
  void Add(const std::vector<Finding>& findings);
  void Warn(const std::string& text) { findings_.push_back({line_, text, false}); }
  void Refuse(const std::string& text) { findings_.push_back({line_, text, true}); }

  struct Letter {
    int line = 0;
    bool hasPicture = false;
    bool hasType = false;
  };

  const Pictures& pictures_;
  std::vector<Finding> findings_;
  std::map<CellKind, int> counts_;
  std::map<LevelKey, double> itemCounts_;
  std::map<char, Letter> letters_;  ///< user items of the map by their upper-case letter
  LevelLines lines_;
  WallGaps walls_;
  int line_ = 0;
  int archives_ = 0;
  int cells_ = 0;  ///< of the map, fillers included
  int highestStart_ = 0;
  int lastStart_ = 0;
  double aiSnakes_ = 0;
};

}  // namespace coilrun
