#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "content/level_format.h"
#include "pictures.h"

namespace coilrun {

/// Something in a level file that its author should look at.
struct Finding {
  int line = 0;
  std::string text;
  bool refused = false;  ///< the game would not load the level
};

/// Reads a level as the game does and finds what the game refuses, ignores or reads otherwise than
/// it looks.
class LevelChecker {
 public:
  explicit LevelChecker(const Pictures& pictures) : pictures_(pictures) {}

  std::vector<Finding> Check(std::string_view text);

 private:
  void CheckRow(std::string_view line, bool isKeyLine);
  void CheckCell(int column, std::string_view word, bool isKeyLine);
  /// A line below the map that looks like a row of it.
  void CheckRowBelow(std::string_view line);
  void CheckOpenEnd(std::string_view line);
  void Count(CellKind kind, char letter);
  const KeyDef* CheckKey(std::string_view line);
  void CheckValue(const KeyDef& def, std::string_view line, const LevelValue& value);
  void CheckNumber(const KeyDef& def, std::string_view rest, const LevelValue& value);
  void CheckRange(const KeyDef& def, double number);
  void CheckName(const KeyDef& def, std::string_view text);
  void CheckUserItem(const KeyDef& def, const LevelValue& value);
  void CheckNoKey(std::string_view line);
  void CheckWhole();
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
  std::map<char, Letter> letters_;  ///< user items of the map by their upper-case letter
  std::map<LevelKey, int> lines_;   ///< where a key was last read
  int line_ = 0;
  int archives_ = 0;
  int highestStart_ = 0;
  int lastStart_ = 0;
  double aiSnakes_ = 0;
};

}  // namespace coilrun
