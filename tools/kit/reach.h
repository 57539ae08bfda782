#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "game/geometry.h"
#include "model/state.h"

namespace coilrun {

/// What takes a snake through walls: nothing; TNT, through those that it blows up; atomic power,
/// through all walls and across closed edges.
enum class Force : std::uint8_t { kNone, kTnt, kPower };

/// Marks, eight bits each, on the positions inside the field.
class PixelMarks {
 public:
  PixelMarks() : marks_(kWidth * kHeight) {}

  /// The bits that are set here; none outside the field.
  std::uint8_t At(Point place) const { return InField(place) ? marks_[Index(place)] : 0; }
  /// True when a head at one of the marked positions touches `thing`.
  bool AnyTouches(const Reach& reach, Point thing) const;
  bool Any() const { return any_; }
  /// Sets bits; true when at least one of them was not set. Outside the field nothing happens.
  bool Set(Point place, std::uint8_t bits);
  void Add(const PixelMarks& marks);

 private:
  static constexpr std::size_t kWidth = kAcross.end;
  static constexpr std::size_t kHeight = kDown.end;

  static std::size_t Index(Point place) {
    return static_cast<std::size_t>(place.y) * kWidth + static_cast<std::size_t>(place.x);
  }

  std::vector<std::uint8_t> marks_;
  bool any_ = false;
};

/// Where heads can go on the field of a loaded level: walls and user items stop them, bodies do
/// not.
class Ground {
 public:
  explicit Ground(const State& state);

  /// True when a head at this place dies on a wall.
  bool IsDeadly(Point head, Force force = Force::kNone) const;
  /// Where one step takes a head, across an open edge too; nothing when the step kills it.
  std::optional<Point> Step(Point from, Dir dir, Force force = Force::kNone) const;
  /// How many steps a head can make straight ahead, counted up to `limit`.
  int FreeSteps(Point from, Dir dir, int limit) const;
  /// Marks every place that a head from this start can reach alive, the start included. A head
  /// never turns back on the spot. No marks when it dies at its start.
  PixelMarks PlacesFrom(Point start, Force force = Force::kNone) const;

 private:
  void Wall(Point wall, std::uint8_t kind);

  PixelMarks deadly_;
  bool openEdges_;
};

}  // namespace coilrun
