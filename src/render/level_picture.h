#pragma once

#include <string>

#include "render/item_pictures.h"
#include "render/model_pictures.h"
#include "render/picture_loader.h"
#include "render/standard_pictures.h"

namespace coilrun {

/// A small picture of a level that is not being played: its field at a third of the size.
class LevelPicture {
 public:
  LevelPicture(PictureLoader& loader, const StandardPictures& standard, const ModelPictures& models,
               ItemPictures& items);

  /// Draws a level with its top left at `x`, `y`. The picture is made again only for a level with
  /// another name.
  void Draw(Surface& target, const State& level, const std::string& name, int x, int y);
  /// Makes the next picture again, whatever the level's name.
  void Forget() { name_.clear(); }

 private:
  Picture Make(const State& level);

  PictureLoader& loader_;
  const StandardPictures& standard_;
  const ModelPictures& models_;
  ItemPictures& items_;
  std::string name_;
  Picture picture_;
};

}  // namespace coilrun
