#pragma once

#include <string_view>

#include "content/context.h"
#include "content/level_fault.h"
#include "content/level_format.h"

namespace coilrun {

/// Reads the text of one level file into the state, line by line, and applies each cell and key at
/// once. The state must have been reset.
class LevelReader {
 public:
  explicit LevelReader(const ContentContext& context) : context_(context), state_(context.state) {}

  /// False when the level cannot be loaded; what was read before stays.
  bool Read(std::string_view text);
  /// What kept the level from being read.
  const LevelFault& Fault() const { return fault_; }
  /// Walls read so far.
  int WallCount() const { return walls_; }

 private:
  bool ReadLine(std::string_view line);
  bool Place(const CellCode& code, Point anchor);
  bool PlaceWall(WallKind kind, Point anchor);
  void PlaceStart(int snake, Point anchor);
  bool PlaceUserItem(char letter, Point anchor);
  bool PlaceSpawnPoint(Point anchor);
  bool Apply(LevelKey key, const LevelValue& value);
  bool ApplyFromTables(LevelKey key, const LevelValue& value);
  bool ApplyText(LevelKey key, std::string_view text);
  bool ApplyToSnakes(LevelKey key, double number);
  bool SetSnakeCount(double aiSnakes);
  bool Require(std::string_view archive);
  void SetUserItemPicture(char letter, std::string_view name);
  void SetUserItemType(char letter, std::string_view type);

  bool FailAt(std::string_view line, std::string_view part, std::string what);

  const ContentContext& context_;
  State& state_;
  int row_ = 0;
  int walls_ = 0;
  int archives_ = 0;
  LevelFault fault_;
};

}  // namespace coilrun
