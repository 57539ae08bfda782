#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "render/standard_pictures.h"

namespace coilrun {

inline constexpr int kBitmapFonts = 6;

/// The six fonts whose glyphs are cut from picture sheets when those are loaded. Texts are
/// Windows-1252.
class BitmapFonts {
 public:
  /// Cuts all glyphs again.
  void CutGlyphs(const StandardPictures& sheets);

  /// The width by which callers centre and align a text: a little more than its ink. 0 for a font
  /// that does not exist.
  static int Width(std::string_view text, int font);
  /// Draws a text with its first cell at `x`, `y`; a glyph that leaves the screen is left out.
  void Draw(Surface& target, std::string_view text, int x, int y, int font) const;

  static bool Exists(int font) { return font >= 1 && font <= kBitmapFonts; }

 private:
  struct Font {
    /// The first stands for all characters without a glyph of their own.
    std::vector<Picture> glyphs = std::vector<Picture>(1);
    /// The number of the glyph, by character code.
    std::array<std::uint8_t, 256> glyphOf{};
  };
  static Font Cut(int font, const Picture& sheet);

  std::array<Font, kBitmapFonts> fonts_;
};

/// The place of a glyph on a font sheet.
struct GlyphCell {
  int column = 0;
  int row = 0;

  bool operator==(const GlyphCell&) const = default;
};
/// The cell of a character in the first three rows, which every sheet has.
GlyphCell CellOf(char character);
/// A further cell of a character, where a sheet of this font has room; drawn in place of `CellOf`
/// when the sheet has a picture there.
std::optional<GlyphCell> FurtherCellOf(int font, char character);
/// The part of the sheet that holds a cell.
Rect GlyphRect(int font, GlyphCell cell);

}  // namespace coilrun
