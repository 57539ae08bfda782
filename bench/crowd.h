#pragma once

#include "model/state.h"

namespace coilrun::bench {

/// How much is on the field.
struct Crowd {
  int walls = 0;
  std::vector<int> snakeLengths;
  int items = 0;       ///< of all kinds together
  int textLength = 0;  ///< glyphs
};

inline Crowd Typical() {
  return {200, {30, 20, 20, 20}, 20, 200};
}
inline Crowd Worst() {
  return {680, std::vector<int>(kMaxSnakes, 99), kMaxItems * kItemKinds, 300};
}

/// The n-th cell of the field, row by row, starting over at the end.
inline Point FieldCell(int n) {
  constexpr int kColumns = 30;
  constexpr int kRows = 22;
  return {kCell * (1 + n % kColumns), kCell * (1 + n / kColumns % kRows)};
}

inline void PutSnakes(State& state, const Crowd& crowd) {
  constexpr std::array kDirs = {Dir::kForw, Dir::kFL,   Dir::kLeft, Dir::kLeft,
                                Dir::kLB,   Dir::kBack, Dir::kBR,   Dir::kRight};
  state.mode.NumSnakes = static_cast<int>(crowd.snakeLengths.size());
  int cell = 0;
  for (int s = 1; s <= state.mode.NumSnakes; ++s) {
    SnakeRec& snake = state.Snakes(s);
    snake.Length = crowd.snakeLengths[static_cast<std::size_t>(s - 1)];
    for (int i = 0; i <= snake.Length; ++i) {
      const Point at = FieldCell(cell++);
      snake.Seg(i) = {at.x, at.y, kDirs[static_cast<std::size_t>(cell) % kDirs.size()]};
    }
    snake.X = snake.Seg(0).X;
    snake.Y = snake.Seg(0).Y;
    snake.Dir = Dir::kLeft;
    snake.Tail = snake.Seg(snake.Length);
    snake.Tail.Dir = Dir::kLeft;
  }
}

/// Puts walls in the order of the map, as a level lists them.
inline void PutWalls(State& state, const Crowd& crowd) {
  state.numWalls = crowd.walls;
  for (int w = 1; w <= crowd.walls; ++w) {
    const Point at = FieldCell(w);
    state.Walls(w) = {at.x, at.y, true, static_cast<WallKind>(1 + w % 7)};
  }
}

inline void PutItems(State& state, const Crowd& crowd) {
  for (int i = 0; i < crowd.items; ++i) {
    ItemList& items = state.Items(static_cast<ItemKind>(i % kItemKinds));
    ++items.count;
    const Point at = FieldCell(11 * i);
    items(items.count) = {at.x, at.y, true, -1, false};
  }
}

inline void Put(State& state, const Crowd& crowd) {
  PutSnakes(state, crowd);
  PutWalls(state, crowd);
  PutItems(state, crowd);
}

}  // namespace coilrun::bench
