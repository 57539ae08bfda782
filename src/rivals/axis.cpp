#include "rivals/axis.h"

#include <algorithm>

namespace coilrun {
namespace {

/// A multiple of the step that keeps positions near the field positive when they are divided.
constexpr int kFarOff = 100 * kCell;

/// The offset of a position within its step, 0 to 19 even left of 0.
int Offset(int position) {
  return (position % kCell + kCell) % kCell;
}

}  // namespace

void Axis::Lay(const FieldAxis& field, int at, bool open) {
  *this = {};
  if (open) {
    AddRow(field, field.farEntry);
    AddRow(field, field.nearEntry);
  }
  AddRow(field, at);
  Link(field, open);
}

void Axis::AddRow(const FieldAxis& field, int through) {
  const int offset = Offset(through);
  const int base = offset == 0 ? kCell : offset;
  for (int r = 0; r < rowCount_; ++r) {
    if (RowAt(r).base == base) return;
  }
  const int first = count_;
  const int count = (field.end - 1 - base) / kCell + 1;
  for (int i = 0; i < count; ++i) {
    const auto index = static_cast<std::size_t>(first + i);
    pixel_[index] = static_cast<std::int16_t>(base + i * kCell);
    row_[index] = static_cast<std::int8_t>(rowCount_);
    before_[index] = static_cast<std::int8_t>(first + i - 1);
    after_[index] = static_cast<std::int8_t>(first + i + 1);
  }
  rows_[static_cast<std::size_t>(rowCount_++)] = {first, count, base};
  count_ += count;
}

void Axis::Link(const FieldAxis& field, bool open) {
  const int far = open ? IndexOf(field.farEntry) : kOut;
  const int near = open ? IndexOf(field.nearEntry) : kOut;
  for (int r = 0; r < rowCount_; ++r) {
    const Row& row = RowAt(r);
    before_[static_cast<std::size_t>(row.first)] = static_cast<std::int8_t>(far);
    after_[static_cast<std::size_t>(row.first + row.count - 1)] = static_cast<std::int8_t>(near);
  }
}

int Axis::IndexOf(int position) const {
  for (int r = 0; r < rowCount_; ++r) {
    const Row& row = RowAt(r);
    const int distance = position - row.base;
    if (distance % kCell != 0) continue;
    const int i = distance / kCell;
    return i >= 0 && i < row.count ? row.first + i : kOut;
  }
  return kOut;
}

Axis::Run Axis::Between(const Row& row, int low, int high) {
  const int first = (low - row.base + kCell - 1 + kFarOff) / kCell - kFarOff / kCell;
  const int last = (high - row.base + kFarOff) / kCell - kFarOff / kCell;
  return {std::max(first, 0), std::min(last, row.count - 1)};
}

}  // namespace coilrun
