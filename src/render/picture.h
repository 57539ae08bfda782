#pragma once

#include <vector>

#include "render/bitmap.h"
#include "render/pixels.h"

namespace coilrun {

/// Which pixels of a picture are transparent when it is drawn keyed.
enum class KeyMode : std::uint8_t {
  kBlack,    ///< black and near black: every channel 10 or less
  kGrey131,  ///< exactly 131, 131, 131
  kGrey128,  ///< exactly 128, 128, 128
};

constexpr bool IsTransparent(KeyMode key, Pixel pixel) {
  switch (key) {
    case KeyMode::kGrey131:
      return pixel == Color{131, 131, 131}.ToPixel();
    case KeyMode::kGrey128:
      return pixel == Color{128, 128, 128}.ToPixel();
    case KeyMode::kBlack:
      break;
  }
  return (pixel >> 16) <= 10 && (pixel >> 8 & 0xFF) <= 10 && (pixel & 0xFF) <= 10;
}

/// Pieces are copied in groups of this many, so that the loops are short.
inline constexpr std::size_t kPieceGroup = 4;

/// The opaque pixels of a picture in pieces of one size: eight, four, two or one, so that drawing
/// is four short loops without a decision inside. `places` are positions on the screen relative to
/// the picture's top left; `pixels` lie one piece after the other. The last piece is repeated until
/// the groups are full.
struct OpaquePieces {
  std::vector<std::uint32_t> places;
  std::vector<Pixel> pixels;
};

/// A picture held in memory, its colour key resolved. A default-made one is unset: drawing it draws
/// nothing.
class Picture {
 public:
  Picture() = default;
  Picture(Bitmap bitmap, KeyMode key);

  bool IsSet() const { return !bitmap_.pixels.empty(); }
  int Width() const { return bitmap_.width; }
  int Height() const { return bitmap_.height; }
  Rect Bounds() const { return {0, 0, bitmap_.width, bitmap_.height}; }
  KeyMode Key() const { return key_; }
  const std::vector<Pixel>& Pixels() const { return bitmap_.pixels; }
  /// A part as a picture of its own; unset when it does not lie wholly inside.
  Picture Cut(const Rect& part) const;

  const OpaquePieces& Eights() const { return eights_; }
  const OpaquePieces& Fours() const { return fours_; }
  const OpaquePieces& Twos() const { return twos_; }
  const OpaquePieces& Ones() const { return ones_; }
  /// How many pixels a keyed draw of the whole picture changes.
  int OpaquePixels() const { return opaque_; }

 private:
  void AddRun(int x, int y, int length);
  void AddPiece(OpaquePieces& pieces, int size, int x, int y);

  Bitmap bitmap_;
  KeyMode key_ = KeyMode::kBlack;
  OpaquePieces eights_;
  OpaquePieces fours_;
  OpaquePieces twos_;
  OpaquePieces ones_;
  int opaque_ = 0;
};

}  // namespace coilrun
