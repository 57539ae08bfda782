#include "wall_gaps.h"

#include <array>
#include <cstdint>
#include <string>

namespace coilrun {
namespace {

/// Sides of a cell, as bits.
constexpr std::uint8_t kLeft = 1;
constexpr std::uint8_t kRight = 2;
constexpr std::uint8_t kTop = 4;
constexpr std::uint8_t kBottom = 8;

/// The sides of the cell that a wall's picture reaches.
constexpr std::uint8_t SidesOf(WallKind kind) {
  switch (kind) {
    case WallKind::kH:
      return kLeft | kRight;
    case WallKind::kV:
      return kTop | kBottom;
    case WallKind::kVL:
      return kRight;
    case WallKind::kVR:
      return kLeft;
    case WallKind::kHT:
      return kBottom;
    case WallKind::kHB:
      return kTop;
    case WallKind::kS:
      return kLeft | kRight | kTop | kBottom;
    case WallKind::kNone:
      break;
  }
  return 0;
}

struct Neighbour {
  int rows;
  int columns;
  std::uint8_t side;  ///< the side of the neighbour that faces the cell
};
constexpr std::array<Neighbour, 4> kNeighbours = {
    {{0, -1, kRight}, {0, 1, kLeft}, {-1, 0, kBottom}, {1, 0, kTop}}};

}  // namespace

std::vector<Finding> WallGaps::Find() const {
  std::vector<Finding> gaps;
  for (const auto& [cell, wall] : walls_) {
    if (wall.kind != WallKind::kS) continue;
    for (const Neighbour& neighbour : kNeighbours) {
      const auto found =
          walls_.find({cell.first + neighbour.rows, cell.second + neighbour.columns});
      if (found == walls_.end() || (SidesOf(found->second.kind) & neighbour.side) != 0) continue;
      gaps.push_back({found->first.first, std::string{"the wall \""} + found->second.code +
                                              "\" in column " +
                                              std::to_string(found->first.second) +
                                              " leaves a gap to the \"+\" beside it"});
    }
  }
  return gaps;
}

}  // namespace coilrun
