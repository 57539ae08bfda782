#include "render/snake_pieces.h"

namespace coilrun {
namespace {

using enum ModelPiece;

/// Corner pictures by the sides that the body joins; the four left turns can have their own.
std::optional<ModelPiece> CornerPiece(Dir dir, bool inverse) {
  switch (dir) {
    case Dir::kFL:
      return inverse ? kBLInverse : kBL;
    case Dir::kRF:
      return inverse ? kFLInverse : kFL;
    case Dir::kLB:
      return inverse ? kBRInverse : kBR;
    case Dir::kBR:
      return inverse ? kFRInverse : kFR;
    case Dir::kLF:
      return kFR;
    case Dir::kRB:
      return kBL;
    case Dir::kFR:
      return kBR;
    case Dir::kBL:
      return kFL;
    default:
      return std::nullopt;
  }
}

std::optional<ModelPiece> TailCornerPiece(Dir dir) {
  switch (dir) {
    case Dir::kFL:
      return kTailBL;
    case Dir::kRF:
      return kTailFL;
    case Dir::kLB:
      return kTailBR;
    case Dir::kBR:
      return kTailFR;
    case Dir::kRB:
      return kTailLB;
    case Dir::kLF:
      return kTailRF;
    case Dir::kFR:
      return kTailBR2;
    case Dir::kBL:
      return kTailFL2;
    default:
      return std::nullopt;
  }
}

/// The piece of a direction in a group of four that is ordered forwards, back, left, right.
std::optional<ModelPiece> Straight(ModelPiece first, Dir dir) {
  if (!IsDirection(dir)) return std::nullopt;
  const int number = static_cast<int>(dir) - static_cast<int>(Dir::kForw);
  return static_cast<ModelPiece>(static_cast<int>(first) + number);
}

}  // namespace

std::optional<ModelPiece> HeadPiece(Dir dir) {
  return Straight(kHeadForw, dir);
}

std::optional<ModelPiece> BodyPiece(Dir dir, const ModelPack& model) {
  if (!IsTurn(dir)) return Straight(kForw, dir);
  return model.Edges ? CornerPiece(dir, model.EdgesInverse) : std::nullopt;
}

std::optional<ModelPiece> TailPiece(Dir dir, const ModelPack& model) {
  if (!IsTurn(dir)) return Straight(kTailForw, dir);
  return model.TailEdges ? TailCornerPiece(dir) : std::nullopt;
}

}  // namespace coilrun
