#pragma once

#include "model/state.h"
#include "render/canvas.h"
#include "render/item_pictures.h"
#include "render/model_pictures.h"
#include "render/snake_pieces.h"
#include "render/standard_pictures.h"

namespace coilrun {

/// Everything on the field, drawn from the state onto the back buffer.
class PlayField {
 public:
  PlayField(const State& state, Canvas& canvas, const StandardPictures& standard,
            const ModelPictures& models, ItemPictures& items);

  void DrawBackground();
  /// The start pictures of waiting snakes; where their heads go is left to the rules.
  void DrawStartMarkers();

  /// The items of one kind; `forceFlat` draws the still picture whatever the setting says.
  void DrawItems(ItemKind kind, bool forceFlat = false);
  /// All six kinds: the coloured ones, then atomic power and TNT, or TNT first.
  void DrawAllItems(bool tntFirst = false);
  void DrawWalls();
  void DrawUserItems();

  /// Head, body and tail of a snake (1 to 16).
  void DrawSnake(int snake);
  /// The snakes in play for which `shown` says so.
  void DrawSnakes(const Table<bool, kMaxSnakes>& shown);

 private:
  /// The picture of a body cell, by direction or turn; null where none is drawn.
  using BodyPictures = std::array<const Picture*, kDirs>;

  void DrawSnakeHead(const SnakeRec& snake);
  void DrawSnakeSeg(const SegRec& cell, const BodyPictures& pictures);
  void DrawSnakeTail(const SnakeRec& snake);
  BodyPictures PicturesOf(const SnakeRec& snake) const;
  void DrawPiece(SnakePiece piece, int model, int x, int y);
  const ModelPack& PackOf(const SnakeRec& snake) const;

  const State& state_;
  Canvas& canvas_;
  const StandardPictures& standard_;
  const ModelPictures& models_;
  ItemPictures& items_;
};

}  // namespace coilrun
