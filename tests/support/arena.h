#pragma once

#include <array>
#include <string>

#include "model/rnd.h"

namespace coilrun {

/// What a generated level holds.
struct ArenaPlan {
  bool openEdges = false;
  bool rim = false;  ///< walls all around the field
  int segments = 0;  ///< rows of walls inside
  int rivals = 8;
  int yellow = 4;
  std::string keys = {};  ///< further lines of the level file
  std::uint64_t seed = 1;
};

/// Level files made in code, with starts for all snakes.
class Arena {
 public:
  explicit Arena(const ArenaPlan& plan) : plan_(plan) {
    for (std::string& row : rows_) row.assign(kColumns, '_');
    rnd_.Reseed(plan.seed);
    if (plan.rim) PutRim();
    PutStarts();
    for (int i = 0; i < plan.segments; ++i) PutSegment();
  }

  std::string Text() const {
    std::string text;
    for (const std::string& row : rows_) {
      for (const char cell : row) text.append(1, cell).append(1, ' ');
      text += ";\r\n";
    }
    text += "AIS=" + std::to_string(plan_.rivals) + "\r\nnumYellow=" + std::to_string(plan_.yellow);
    if (plan_.openEdges) text += "\r\nhasOpenWalls=True";
    return text + "\r\n" + plan_.keys;
  }

 private:
  static constexpr int kColumns = 30;
  static constexpr int kRows = 22;

  char& Cell(int column, int row) {
    return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
  }
  void PutRim() {
    for (int column = 0; column < kColumns; ++column)
      Cell(column, 0) = Cell(column, kRows - 1) = '-';
    for (int row = 0; row < kRows; ++row) Cell(0, row) = Cell(kColumns - 1, row) = '|';
  }
  /// Puts starts in the order in which a level lists them: the one read last says how many there
  /// are.
  void PutStarts() {
    constexpr std::string_view kCodes = "S123456789ABCDEF";
    for (int snake = 0; snake <= plan_.rivals; ++snake) {
      Cell(4 + 7 * (snake % 4), 4 + 5 * (snake / 4)) = kCodes.at(static_cast<std::size_t>(snake));
    }
  }
  bool IsClear(int column, int row) {
    for (int y = row - 2; y <= row + 2; ++y) {
      for (int x = column - 2; x <= column + 2; ++x) {
        if (x < 0 || x >= kColumns || y < 0 || y >= kRows) continue;
        if (Cell(x, y) != '_' && Cell(x, y) != '=') return false;
      }
    }
    return true;
  }
  void PutSegment() {
    const bool across = rnd_.Below(2) == 0;
    int column = 2 + rnd_.Below(kColumns - 4);
    int row = 2 + rnd_.Below(kRows - 4);
    const int length = 3 + rnd_.Below(4);
    for (int i = 0; i < length && column < kColumns - 2 && row < kRows - 2; ++i) {
      if (!IsClear(column, row)) break;
      Cell(column, row) = '=';
      ++(across ? column : row);
    }
    for (std::string& cells : rows_) {
      for (char& cell : cells) {
        if (cell == '=') cell = across ? '-' : '|';
      }
    }
  }

  ArenaPlan plan_;
  std::array<std::string, kRows> rows_;
  Rnd rnd_;
};

}  // namespace coilrun
