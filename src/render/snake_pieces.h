#pragma once

#include <array>
#include <optional>

#include "model/records.h"
#include "render/model_pictures.h"

namespace coilrun {

using SnakePiece = std::optional<ModelPiece>;

/// The pictures of a direction or turn; corners are named after the sides that they join.
struct DirPieces {
  SnakePiece head;
  SnakePiece body;
  SnakePiece ownBody;  ///< `body` of a model whose left turns have pictures of their own
  SnakePiece tail;
};

/// In the order of `Dir`.
inline constexpr std::array<DirPieces, kDirs> kDirPieces = [] {
  using enum ModelPiece;
  constexpr auto kNothing = std::nullopt;
  return std::array<DirPieces, kDirs>{{{},
                                       {kHeadForw, kForw, kForw, kTailForw},
                                       {kHeadBack, kBack, kBack, kTailBack},
                                       {kHeadLeft, kLeft, kLeft, kTailLeft},
                                       {kHeadRight, kRight, kRight, kTailRight},
                                       {kNothing, kBL, kBLInverse, kTailBL},
                                       {kNothing, kBR, kBR, kTailBR2},
                                       {kNothing, kFL, kFL, kTailFL2},
                                       {kNothing, kFR, kFRInverse, kTailFR},
                                       {kNothing, kFR, kFR, kTailRF},
                                       {kNothing, kBR, kBRInverse, kTailBR},
                                       {kNothing, kFL, kFLInverse, kTailFL},
                                       {kNothing, kBL, kBL, kTailLB}}};
}();

/// Which picture shows a head; none for a snake that stands still.
constexpr SnakePiece HeadPiece(Dir dir) {
  return kDirPieces[static_cast<std::size_t>(dir)].head;
}

/// Which picture shows a body cell. Turns are drawn only when the model has corner pictures
/// (`Edges`); left turns have their own when it says `EdgesInverse`.
constexpr SnakePiece BodyPiece(Dir dir, const ModelPack& model) {
  if (IsTurn(dir) && !model.Edges) return std::nullopt;
  const DirPieces& pieces = kDirPieces[static_cast<std::size_t>(dir)];
  return model.EdgesInverse ? pieces.ownBody : pieces.body;
}

/// Which picture shows the end of a tail. Turns are drawn only when the model has pictures for
/// them.
constexpr SnakePiece TailPiece(Dir dir, const ModelPack& model) {
  if (IsTurn(dir) && !model.TailEdges) return std::nullopt;
  return kDirPieces[static_cast<std::size_t>(dir)].tail;
}

}  // namespace coilrun
