#pragma once

#include <array>
#include <cstdint>

#include "game/geometry.h"

namespace coilrun {

/// The places on one axis of the field that a head can come to: 20 pixels apart, in up to three
/// rows. An open edge lets a head back in at another offset, so there is a row through each of its
/// two entries; the other row goes through the place where the head stands.
class Axis {
 public:
  static constexpr int kMost = 96;
  static constexpr int kRows = 3;
  /// No place: beyond a closed edge, or off all rows.
  static constexpr int kOut = -1;

  /// One row: the places `first` to `first + count - 1`, starting at pixel `base`.
  struct Row {
    int first = 0;
    int count = 0;
    int base = 0;

    bool operator==(const Row&) const = default;
  };
  /// Places of a row, numbered within it; none when `last` is less than `first`.
  struct Run {
    int first;
    int last;
  };

  /// `at` is a head's position on this axis; rows repeat every 20 pixels, so it may be outside.
  void Lay(const FieldAxis& field, int at, bool open);

  int IndexOf(int position) const;
  /// How many places all rows have; two axes that are laid alike are equal.
  int Count() const { return count_; }
  bool operator==(const Axis&) const = default;

  int PixelOf(int index) const { return pixel_[static_cast<std::size_t>(index)]; }
  int RowOf(int index) const { return row_[static_cast<std::size_t>(index)]; }
  /// One step towards 0, or away from it; `kOut` beyond a closed edge.
  int Before(int index) const { return before_[static_cast<std::size_t>(index)]; }
  int After(int index) const { return after_[static_cast<std::size_t>(index)]; }

  int Rows() const { return rowCount_; }
  const Row& RowAt(int row) const { return rows_[static_cast<std::size_t>(row)]; }
  /// The places of a row from one pixel to another, both included.
  static Run Between(const Row& row, int low, int high);

 private:
  void AddRow(const FieldAxis& field, int through);
  void Link(const FieldAxis& field, bool open);

  std::array<Row, kRows> rows_{};
  int rowCount_ = 0;
  int count_ = 0;
  std::array<std::int16_t, kMost> pixel_{};
  std::array<std::int8_t, kMost> row_{};
  std::array<std::int8_t, kMost> before_{};
  std::array<std::int8_t, kMost> after_{};
};

}  // namespace coilrun
