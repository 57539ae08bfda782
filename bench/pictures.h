#pragma once

#include "render/stage.h"

namespace coilrun::bench {

/// Pictures with masks as the game's own have them: crescents, tubes, bricks and strokes.
void PutPictures(MemoryFiles& files);

/// A frame of the animation of a kind.
Bitmap ItemFrame(ItemKind kind);
Bitmap ModelPicture(ModelPiece piece);
Bitmap WallPicture();
Bitmap FontSheet(int font);
Bitmap Background();

}  // namespace coilrun::bench
