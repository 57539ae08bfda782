#pragma once

#include <array>
#include <string_view>

#include "render/standard_pictures.h"

namespace coilrun {

inline constexpr int kBitmapFonts = 6;

/// The six fonts whose glyphs are cut from picture sheets when these are loaded.
class BitmapFonts {
 public:
  /// Cuts all glyphs anew.
  void CutGlyphs(const StandardPictures& sheets);

  /// Width by which callers centre and align a text: a little more than its ink. 0 for a font that
  /// does not exist.
  static int Width(std::string_view text, int font);
  /// Draws a text with its first cell at `x`, `y`; a glyph that leaves the screen is left out.
  void Draw(Surface& target, std::string_view text, int x, int y, int font) const;

  static bool Exists(int font) { return font >= 1 && font <= kBitmapFonts; }

 private:
  static constexpr int kRows = 3;
  static constexpr int kColumns = 26;

  std::array<std::array<Picture, static_cast<std::size_t>(kRows) * kColumns>, kBitmapFonts> fonts_;
};

/// Cell of a character on a font sheet.
struct GlyphCell {
  int column = 0;
  int row = 0;

  bool operator==(const GlyphCell&) const = default;
};
GlyphCell CellOf(char character);
/// The part of the sheet that holds a cell.
Rect GlyphRect(int font, GlyphCell cell);

}  // namespace coilrun
