#pragma once

#include <string>
#include <string_view>

#include "model/saturating.h"
#include "model/table.h"
#include "model/words.h"
#include "model/written.h"

namespace coilrun {

/// A position on the screen in pixels.
struct Point {
  int x = 0;
  int y = 0;

  bool operator==(const Point&) const = default;
};

/// Length of a step and side of a cell, in pixels.
inline constexpr int kCell = 20;
/// Where a body cell that is not in use is kept: off the screen.
inline constexpr Point kParked{-20, -20};

/// One cell of a snake's body; parked until it is used.
struct SegRec {
  Int16 X = kParked.x;
  Int16 Y = kParked.y;
  coilrun::Dir Dir = coilrun::Dir::kNone;
};

inline constexpr int kLastSeg = 100;
/// `Length` is cut to this before every collision pass.
inline constexpr int kMaxLength = 99;

/// One snake: the player (slot 1) or an AI snake.
struct SnakeRec {
  Int16 X;
  Int16 Y;
  coilrun::Dir Dir = coilrun::Dir::kNone;
  coilrun::Dir NextDir =
      coilrun::Dir::kNone;  ///< what the keyboard asks for; taken at the next step
  Int16 Length = 1;         ///< body cells in use
  Int16 Grow;               ///< cells still to be added
  Int32 StartX;
  Int32 StartY;
  Table<SegRec, kLastSeg + 1, 0> Seg;  ///< Seg(0): the cell that the head has just left
  SegRec Tail{.X = 0, .Y = 0};
  Int32 Score;       ///< points in this level; may be negative
  Int32 TotalScore;  ///< points of all finished levels
  Int16 Lives;
  Int16 Frags;
  std::string Name;
  Int16 BaseInterval;  ///< normal step period in milliseconds
  Int16 Interval;      ///< step period in force, in milliseconds
  Int16 Model;
  Int16 Deaths;
  Int16 RedEaten;
  Int16 BlueEaten;
  Int16 BlackEaten;
  Int16 YellowEaten;
  Int16 PowerEaten;
  Int16 TNT;
  bool Immortal = false;
  Int16 ImmortalSecs;

  Point Head() const { return {X, Y}; }
};

struct ItemRec {
  Int16 X;
  Int16 Y;
  bool Present = false;
  Int16 SpawnPoint;        ///< the spawn point that it was placed on, or -1
  bool Collected = false;  ///< eaten while the level hides collected items

  Point At() const { return {X, Y}; }
};

struct WallRec {
  Int16 X;
  Int16 Y;
  bool Present = false;
  WallKind Kind = WallKind::kNone;

  Point At() const { return {X, Y}; }
};

struct SpawnRec {
  Int16 X;
  Int16 Y;
  bool Present = false;
  Written<SpawnUse> State;
};

/// A wall with a picture that the level brings.
struct UserItemRec {
  Int16 X;
  Int16 Y;
  bool Present = false;
  std::string Name;  ///< the map letter in upper case, then the picture's name
  Written<UserItemType> Type;

  Point At() const { return {X, Y}; }
};

/// A text centred on the screen; an empty one is not drawn.
struct CenterLine {
  std::string Text;
  Int16 Y;
  Int16 Font;
};

/// The name of players who have given none.
inline constexpr std::string_view kUnknownName = "Unknown";

struct HiScoreEntry {
  std::string Name;
  double Score = 0;
};

/// A set of pictures that snakes are drawn with.
struct ModelPack {
  std::string File;
  std::string Dir;
  std::string Name;
  std::string Author;
  bool Edges = false;
  bool EdgesInverse = false;
  bool TailEdges = false;
};

}  // namespace coilrun
