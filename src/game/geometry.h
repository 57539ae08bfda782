#pragma once

#include "model/records.h"

namespace coilrun {

/// How far a head may be from a thing and still touch it, bounds included.
struct Reach {
  int minX;
  int maxX;
  int minY;
  int maxY;

  constexpr bool Touches(Point head, Point thing) const {
    const int dx = head.x - thing.x;
    const int dy = head.y - thing.y;
    return minX <= dx && dx <= maxX && minY <= dy && dy <= maxY;
  }
};

/// Touch is lopsided on purpose: 16 pixels to the left of an obstacle and above it, 12 to the right
/// and below.
inline constexpr Reach kObstacleReach{-16, 12, -16, 12};

/// One axis of the field: heads live between 0 and `end`, both excluded. An open edge lets a head
/// back in on the other side.
struct FieldAxis {
  int end;
  int farEntry;   ///< for a head that left at 0
  int nearEntry;  ///< for a head that left at `end`

  constexpr bool Holds(int position) const { return 0 < position && position < end; }
  constexpr int Wrapped(int position) const {
    if (position <= 0) return farEntry;
    return position >= end ? nearEntry : position;
  }
};
inline constexpr FieldAxis kAcross{615, 600, 15};
inline constexpr FieldAxis kDown{455, 440, 15};

constexpr bool InField(Point head) {
  return kAcross.Holds(head.x) && kDown.Holds(head.y);
}

/// The two cells behind a head never hurt.
inline constexpr int kFirstDeadlyCell = 2;

/// True when the cells at these two positions share a pixel.
constexpr bool Overlap(Point a, Point b) {
  const int dx = a.x - b.x;
  const int dy = a.y - b.y;
  return -kCell < dx && dx < kCell && -kCell < dy && dy < kCell;
}

/// One step from `from`; standing still and turn codes lead nowhere.
constexpr Point Stepped(Point from, Dir dir) {
  switch (dir) {
    case Dir::kLeft:
      return {from.x - kCell, from.y};
    case Dir::kRight:
      return {from.x + kCell, from.y};
    case Dir::kForw:
      return {from.x, from.y - kCell};
    case Dir::kBack:
      return {from.x, from.y + kCell};
    default:
      return from;
  }
}

constexpr Dir Reverse(Dir dir) {
  switch (dir) {
    case Dir::kLeft:
      return Dir::kRight;
    case Dir::kRight:
      return Dir::kLeft;
    case Dir::kForw:
      return Dir::kBack;
    case Dir::kBack:
      return Dir::kForw;
    default:
      return Dir::kNone;
  }
}

}  // namespace coilrun
