#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "game/geometry.h"
#include "model/state.h"
#include "rivals/axis.h"

namespace coilrun {

inline constexpr std::array kDirections = {Dir::kForw, Dir::kBack, Dir::kLeft, Dir::kRight};

/// Something that a head wants to come to.
struct Goal {
  Point at;
  Reach reach{};           ///< how near to it counts as there
  std::uint8_t worth = 1;  ///< 1 to 250; of two goals at one place, the larger worth counts
};

/// How a snake sees walls that TNT can blow up: as they stand, or as if they were not there.
enum class WallSight : std::uint8_t { kStand, kIgnored };

/// The field as one snake meets it: the places that its head can come to, and from which of its
/// steps on each of them is free. Bodies move on, so a place behind a tail becomes free in time.
/// Nothing is allocated.
class Ground {
 public:
  using Node = int;
  static constexpr Node kNowhere = -1;
  static constexpr int kNodes = 68 * 96;
  /// A place that is never free.
  static constexpr int kNever = 255;

  /// Looks again.
  void Look(const State& state, int snake, std::span<const Goal> goals = {},
            WallSight walls = WallSight::kStand);

  /// The node at a place; `kNowhere` when the head cannot come to it.
  Node At(Point place) const;
  Point PlaceOf(Node node) const;
  /// The place one step from the head; the head itself may be off the field.
  Node FirstStep(Dir dir) const;
  /// The places one step away, in the order of `kDirections`; `kNowhere` beyond a closed edge.
  const std::array<std::int16_t, 4>& Around(Node node) const { return around_[Index(node)]; }

  /// The first of the snake's steps, 1 being the next one, in which it can surely be here and live:
  /// others may eat, and then their bodies stay longer.
  int FreeFrom(Node node) const { return freeFrom_[Index(node)]; }
  /// The same, provided that no other snake eats.
  int SoonestFree(Node node) const { return soonest_[Index(node)]; }
  /// True when the snake can surely be here in `step` and live, unless another head comes.
  bool IsFree(Node node, int step) const { return FreeFrom(node) <= step || step < immuneSteps_; }
  /// What reaching this place is worth; 0 when no goal is in reach.
  int WorthOf(Node node) const { return worth_[Index(node)]; }
  /// Calls `visit(node)` for each place where a head shares a pixel with a cell at `place`.
  template <typename Visit>
  void ForOverlaps(Point place, const Visit& visit) const {
    ForPlaces(place, kBodyReach, visit);
  }
  /// True when no two places share a pixel.
  bool IsPlain() const { return across_.Rows() == 1 && down_.Rows() == 1; }

 private:
  /// Heads die on a body cell that they share a pixel with.
  static constexpr Reach kBodyReach{1 - kCell, kCell - 1, 1 - kCell, kCell - 1};

  using Layer = std::array<std::uint8_t, kNodes>;

  static std::size_t Index(Node node) { return static_cast<std::size_t>(node); }
  void Lay();
  void Clear();
  void SeeWalls(const State& state);
  void SeeUserWalls(const State& state);
  void SeeSnakes(const State& state, int snake);
  void SeeBody(const State& state, int snake, int looker);
  void SeeGoals(std::span<const Goal> goals);
  Point Onward(Point head, Dir dir) const;
  /// Calls `visit(node)` for each place within `reach` of a thing.
  template <typename Visit>
  void ForPlaces(Point thing, const Reach& reach, const Visit& visit) const;
  void Put(Layer& layer, Point thing, const Reach& reach, int value);
  void Block(Point thing, const Reach& reach, int soonest, int surely);

  Point head_;
  WallSight walls_ = WallSight::kStand;
  bool open_ = false;
  int immuneSteps_ = 0;
  Axis across_;
  Axis down_;
  std::array<std::array<std::int16_t, 4>, kNodes> around_{};  ///< as the axes are laid
  Layer freeFrom_{};
  Layer soonest_{};
  Layer worth_{};
};

template <typename Visit>
void Ground::ForPlaces(Point thing, const Reach& reach, const Visit& visit) const {
  for (int down = 0; down < down_.Rows(); ++down) {
    const Axis::Row& rowDown = down_.RowAt(down);
    const Axis::Run y = Axis::Between(rowDown, thing.y + reach.minY, thing.y + reach.maxY);
    if (y.last < y.first) continue;
    for (int across = 0; across < across_.Rows(); ++across) {
      const Axis::Row& rowAcross = across_.RowAt(across);
      const Axis::Run x = Axis::Between(rowAcross, thing.x + reach.minX, thing.x + reach.maxX);
      for (int i = y.first; i <= y.last; ++i) {
        const int line = (rowDown.first + i) * across_.Count() + rowAcross.first;
        for (int j = x.first; j <= x.last; ++j) visit(line + j);
      }
    }
  }
}

}  // namespace coilrun
