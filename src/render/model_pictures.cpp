#include "render/model_pictures.h"

#include <span>

namespace coilrun {
namespace {

using enum ModelPiece;

constexpr PictureSize kPieceSize{kModelSide, kModelSide};

/// By the number of the piece.
constexpr std::array<std::string_view, kModelPieces> kFiles = {
    "head_forw.bmp",   "head_back.bmp",  "head_left.bmp",   "head_right.bmp",  "Snake_forw.bmp",
    "Snake_back.bmp",  "Snake_left.bmp", "Snake_right.bmp", "Snake_b_l.bmp",   "Snake_b_r.bmp",
    "Snake_f_l.bmp",   "Snake_f_r.bmp",  "Snake_b_l_i.bmp", "Snake_b_r_i.bmp", "Snake_f_l_i.bmp",
    "Snake_f_r_i.bmp", "tail_forw.bmp",  "tail_back.bmp",   "tail_left.bmp",   "tail_right.bmp",
    "Tail_b_l.bmp",    "Tail_b_r.bmp",   "Tail_f_l.bmp",    "Tail_f_r.bmp",    "Tail_f_l_2.bmp",
    "Tail_r_f.bmp",    "Tail_l_b.bmp",   "Tail_b_r_2.bmp",  "start.bmp"};

// The groups in loading order.
constexpr std::array kAlways = {kHeadForw, kHeadBack, kHeadLeft,  kHeadRight, kForw,     kBack,
                                kLeft,     kRight,    kTailRight, kTailLeft,  kTailForw, kTailBack};
constexpr std::array kCorners = {kBR, kFR, kBL, kFL};
constexpr std::array kLeftTurns = {kBRInverse, kFRInverse, kBLInverse, kFLInverse};
constexpr std::array kTailCorners = {kTailBR, kTailFR, kTailBL,  kTailFL,
                                     kTailLB, kTailRF, kTailFL2, kTailBR2};
constexpr std::array kMarker = {kStart};

constexpr std::size_t Index(ModelPiece piece) {
  return static_cast<std::size_t>(piece);
}

/// The pieces that a pack with these flags has, in loading order.
std::vector<ModelPiece> PiecesOf(const ModelPack& pack) {
  std::vector<ModelPiece> pieces;
  const auto add = [&pieces](std::span<const ModelPiece> group) {
    for (const ModelPiece piece : group) pieces.push_back(piece);
  };
  add(kAlways);
  if (pack.Edges) add(kCorners);
  if (pack.Edges && pack.EdgesInverse) add(kLeftTurns);
  if (pack.TailEdges) add(kTailCorners);
  add(kMarker);
  return pieces;
}

}  // namespace

std::vector<std::string_view> ModelFiles(const ModelPack& pack) {
  std::vector<std::string_view> files;
  for (const ModelPiece piece : PiecesOf(pack)) files.push_back(kFiles[Index(piece)]);
  return files;
}

ModelPictures::ModelPictures(State& state, PictureLoader& loader)
    : state_(state), loader_(loader), models_(kMaxModelPacks) {}

void ModelPictures::LoadModelPictures(int model) {
  const ModelPack& pack = state_.ModelPacks(model);
  auto& pictures = models_[static_cast<std::size_t>(model)];
  pictures = {};
  const std::string folder = InProgramFolder("\\gfx\\", pack.Dir) + "\\";
  for (const ModelPiece piece : PiecesOf(pack)) {
    const std::string path = folder + std::string{kFiles[Index(piece)]};
    pictures[Index(piece)] = loader_.DD_CreateSurfFromFile(path, kPieceSize, KeyMode::kBlack,
                                                           {.modelPicture = true, .counted = true});
  }
}

}  // namespace coilrun
