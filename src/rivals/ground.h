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
  Reach reach;             ///< from where it counts as reached
  std::uint8_t worth = 1;  ///< 1 to 250; of two goals at one place the larger counts
};

/// How a snake looks at walls that TNT can blow: as they stand, or as if there were none.
enum class WallSight : std::uint8_t { kStand, kIgnored };

/// The field as one snake meets it: the places that its head can come to, and from which of its
/// steps on each of them is free. Bodies move on, so that a place behind a tail is free in time.
/// Parts of the field are looked at when they are first asked for, and nothing is allocated.
class Ground {
 public:
  using Node = int;
  static constexpr Node kNowhere = -1;
  static constexpr int kNodes = 68 * 128;
  /// A place that is never free.
  static constexpr int kNever = 255;

  /// Looks anew. `state` must outlive the questions that follow.
  void Look(const State& state, int snake, std::span<const Goal> goals = {},
            WallSight walls = WallSight::kStand);
  /// From now on the places near other heads count as theirs as soon as they can be there.
  void MindHeads();

  /// The node at a place; `kNowhere` when the head cannot come to it.
  Node At(Point place) const;
  Point PlaceOf(Node node) const;
  /// The place one step from the head: it may be off the field where the head itself is.
  Node FirstStep(Dir dir) const;
  Node Neighbour(Node node, Dir dir) const;

  /// The first of the snake's steps, 1 for the next one, in which it can be here and live.
  int FreeFrom(Node node);
  /// True when the snake can be here in `step` and live, and no other head that is minded was there
  /// before it.
  bool IsFree(Node node, int step) {
    return step < immuneSteps_ ||
           (FreeFrom(node) <= step && step <= lostFrom_[static_cast<std::size_t>(node)]);
  }
  /// What reaching this place is worth; 0 when no goal is in reach.
  int WorthOf(Node node);

 private:
  static constexpr int kStride = 128;
  static constexpr std::uint8_t kUnseen = 254;
  static constexpr int kLatest = 253;

  using Layer = std::array<std::uint8_t, kNodes>;

  void See(int block);
  void SeeNode(Node node);
  void SeeWalls();
  void SeeUserWalls();
  void SeeSnakes();
  void SeeBody(int snake);
  void SeeImmortal(const SnakeRec& other);
  void SeeHead(int snake);
  void SeeGoals();
  Point Onward(Point head, Dir dir) const;
  /// Calls `visit(node)` for each place of the pair of rows in hand within `reach` of a thing.
  template <typename Visit>
  void ForPlaces(Point thing, const Reach& reach, const Visit& visit) const;
  void Put(Layer& layer, Point thing, const Reach& reach, int value);

  const State* state_ = nullptr;
  int snake_ = 0;
  Point head_;
  std::span<const Goal> goals_;
  WallSight walls_ = WallSight::kStand;
  bool open_ = false;
  bool mindsHeads_ = false;
  int immuneSteps_ = 0;
  Axis across_;
  Axis down_;
  unsigned seen_ = 0;  ///< a bit for each pair of rows
  const Axis::Row* rowAcross_ = nullptr;
  const Axis::Row* rowDown_ = nullptr;
  Layer freeFrom_{};
  Layer worth_{};
  Layer lostFrom_{};  ///< the last step in which no other head has been there
};

}  // namespace coilrun
