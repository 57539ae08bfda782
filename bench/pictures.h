#pragma once

#include "render/stage.h"

namespace coilrun::bench {

/// Adds pictures with masks like those of the game: crescents, tubes, bricks and strokes.
void PutPictures(MemoryFiles& files);

/// A frame of a kind's animation.
Bitmap ItemFrame(ItemKind kind);
Bitmap ModelPicture(ModelPiece piece);
Bitmap WallPicture();
Bitmap FontSheet(int font);
Bitmap Background();

}  // namespace coilrun::bench
