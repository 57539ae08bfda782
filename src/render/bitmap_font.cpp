#include "render/bitmap_font.h"

#include "model/numbers.h"

namespace coilrun {
namespace {

/// Size of a glyph cell, and by how much glyphs are moved together, in pixels.
struct FontMetrics {
  Standard sheet;
  double width;
  double height;
  double tightening;
};

constexpr std::array<FontMetrics, kBitmapFonts> kFonts = {{{Standard::kFont1, 7, 14, 0},
                                                           {Standard::kFont2, 9.05, 16.5, 0},
                                                           {Standard::kFont3, 17, 23, 6},
                                                           {Standard::kFont4, 8, 15, 0},
                                                           {Standard::kFont5, 16.7, 24, 5},
                                                           {Standard::kFont6, 11, 21, 2}}};

constexpr int kFirstSign = 11;
constexpr std::string_view kSigns = ".:-+*/()=\\_!?";
/// Blanks and all characters without a cell of their own.
constexpr GlyphCell kOtherCell{10, 2};

const FontMetrics& Metrics(int font) {
  return kFonts.at(static_cast<std::size_t>(font - 1));
}

}  // namespace

GlyphCell CellOf(char character) {
  if (character >= 'A' && character <= 'Z') return {character - 'A', 0};
  if (character >= 'a' && character <= 'z') return {character - 'a', 1};
  if (character >= '0' && character <= '9') return {character - '0', 2};
  const std::size_t sign = kSigns.find(character);
  if (sign == std::string_view::npos) return kOtherCell;
  return {kFirstSign + static_cast<int>(sign), 2};
}

Rect GlyphRect(int font, GlyphCell cell) {
  const FontMetrics& metrics = Metrics(font);
  return {RoundToInt(cell.column * metrics.width), RoundToInt(cell.row * metrics.height),
          RoundToInt((cell.column + 1) * metrics.width - 1),
          RoundToInt((cell.row + 1) * metrics.height)};
}

void BitmapFonts::CutGlyphs(const StandardPictures& sheets) {
  for (int font = 1; font <= kBitmapFonts; ++font) {
    auto& glyphs = fonts_[static_cast<std::size_t>(font - 1)];
    const Picture& sheet = sheets(Metrics(font).sheet);
    for (int row = 0; row < kRows; ++row) {
      for (int column = 0; column < kColumns; ++column) {
        const auto glyph = static_cast<std::size_t>(row * kColumns + column);
        glyphs[glyph] = sheet.Cut(GlyphRect(font, {column, row}));
      }
    }
  }
}

int BitmapFonts::Width(std::string_view text, int font) {
  if (!Exists(font)) return 0;
  const auto count = static_cast<double>(text.size());
  const FontMetrics& metrics = Metrics(font);
  return RoundToInt((count + 1) * metrics.width - (count + 2) * metrics.tightening);
}

void BitmapFonts::Draw(Surface& target, std::string_view text, int x, int y, int font) const {
  if (!Exists(font)) return;
  const FontMetrics& metrics = Metrics(font);
  const auto& glyphs = fonts_[static_cast<std::size_t>(font - 1)];
  double left = x - metrics.tightening;
  for (const char character : text) {
    const GlyphCell cell = CellOf(character);
    const auto glyph = static_cast<std::size_t>(cell.row * kColumns + cell.column);
    target.Blit(glyphs[glyph], RoundToInt(left), y);
    left += metrics.width - metrics.tightening;
  }
}

}  // namespace coilrun
