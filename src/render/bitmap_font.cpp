#include "render/bitmap_font.h"

#include <algorithm>

#include "model/numbers.h"

namespace coilrun {
namespace {

/// Size of a glyph cell, and by how much glyphs are moved together, in hundredths of a pixel: whole
/// numbers, so that a half is a half when it is rounded.
struct FontMetrics {
  Standard sheet;
  int width;
  int height;
  int tightening;
};
constexpr int kPixel = 100;
/// Longer texts are measured as if they ended here: many screens wide.
constexpr std::size_t kLongestText = 100000;

constexpr std::array<FontMetrics, kBitmapFonts> kFonts = {{{Standard::kFont1, 700, 1400, 0},
                                                           {Standard::kFont2, 905, 1650, 0},
                                                           {Standard::kFont3, 1700, 2300, 600},
                                                           {Standard::kFont4, 800, 1500, 0},
                                                           {Standard::kFont5, 1670, 2400, 500},
                                                           {Standard::kFont6, 1100, 2100, 200}}};

constexpr int kFirstSign = 11;
constexpr std::string_view kSigns = ".:-+*/()=\\_!?";
/// Blanks and all characters without a cell of their own.
constexpr GlyphCell kOtherCell{10, 2};

/// Exact: a quotient of whole numbers that is a half has that half in binary too.
int ToPixels(int hundredths) {
  return RoundToInt(static_cast<double>(hundredths) / kPixel);
}

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
  return {ToPixels(cell.column * metrics.width), ToPixels(cell.row * metrics.height),
          ToPixels((cell.column + 1) * metrics.width - kPixel),
          ToPixels((cell.row + 1) * metrics.height)};
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
  const auto count = static_cast<int>(std::min(text.size(), kLongestText));
  const FontMetrics& metrics = Metrics(font);
  return ToPixels((count + 1) * metrics.width - (count + 2) * metrics.tightening);
}

void BitmapFonts::Draw(Surface& target, std::string_view text, int x, int y, int font) const {
  if (!Exists(font)) return;
  const FontMetrics& metrics = Metrics(font);
  const auto& glyphs = fonts_[static_cast<std::size_t>(font - 1)];
  int left = x * kPixel - metrics.tightening;
  for (const char character : text.substr(0, kLongestText)) {
    const GlyphCell cell = CellOf(character);
    const auto glyph = static_cast<std::size_t>(cell.row * kColumns + cell.column);
    target.Blit(glyphs[glyph], ToPixels(left), y);
    left += metrics.width - metrics.tightening;
  }
}

}  // namespace coilrun
