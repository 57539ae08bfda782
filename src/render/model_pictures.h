#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "model/shown_model.h"
#include "render/picture_loader.h"

namespace coilrun {

/// The pictures that a snake is drawn with, numbered like a model pack's files.
enum class ModelPiece : std::uint8_t {
  kHeadForw,
  kHeadBack,
  kHeadLeft,
  kHeadRight,
  kForw,
  kBack,
  kLeft,
  kRight,
  kBL,
  kBR,
  kFL,
  kFR,
  kBLInverse,
  kBRInverse,
  kFLInverse,
  kFRInverse,
  kTailForw,
  kTailBack,
  kTailLeft,
  kTailRight,
  kTailBL,
  kTailBR,
  kTailFL,
  kTailFR,
  kTailFL2,
  kTailRF,
  kTailLB,
  kTailBR2,
  kStart,
};
inline constexpr int kModelPieces = 29;
/// Width and height of each, in pixels.
inline constexpr int kModelSide = 20;

/// The files that a pack with these flags must hold in its folder, in loading order.
std::vector<std::string_view> ModelFiles(const ModelPack& pack);

/// The pictures of all model packs.
class ModelPictures {
 public:
  ModelPictures(State& state, PictureLoader& loader);

  /// Loads the pictures of model `model` (0 to 99) from its pack's folder below gfx, as far as its
  /// flags ask for them; the others are unset.
  void LoadModelPictures(int model);

  /// A model without a pack gets the pictures of pack 0; they are unset when there are no packs.
  const Picture& operator()(int model, ModelPiece piece) const {
    const int shown = ShownModel(state_, model);
    if (shown < 0 || shown >= kMaxModelPacks) return unset_;
    return models_[static_cast<std::size_t>(shown)][static_cast<std::size_t>(piece)];
  }

 private:
  State& state_;
  PictureLoader& loader_;
  Picture unset_;
  std::vector<std::array<Picture, kModelPieces>> models_;
};

}  // namespace coilrun
