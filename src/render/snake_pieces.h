#pragma once

#include <optional>

#include "model/records.h"
#include "render/model_pictures.h"

namespace coilrun {

/// Which picture shows a head, a body cell or a tail end; nothing when none is drawn.
std::optional<ModelPiece> HeadPiece(Dir dir);
/// Turn cells are drawn only when the model has corner pictures (`Edges`); left turns have their
/// own when it says `EdgesInverse`.
std::optional<ModelPiece> BodyPiece(Dir dir, const ModelPack& model);
std::optional<ModelPiece> TailPiece(Dir dir, const ModelPack& model);

}  // namespace coilrun
