#include "render/bitmap_font.h"

#include <algorithm>

#include "model/numbers.h"

namespace coilrun {
namespace {

/// The size of a glyph cell and how much closer together glyphs are set, in hundredths of a pixel:
/// whole numbers, so that a half is exactly a half when it is rounded. Then the further cells:
/// where they start, and what their second row holds.
struct FontMetrics {
  Standard sheet;
  int width;
  int height;
  int tightening;
  GlyphCell further;
  std::string_view furtherLetters;
};
constexpr int kPixel = 100;
/// Longer texts are measured as if they ended here, many screens wide.
constexpr std::size_t kLongestText = 100000;

/// Small sheets have room beside the letters, large ones below the digits.
constexpr GlyphCell kBeside{26, 0};
constexpr GlyphCell kBelow{0, 3};
/// The last two are an acute accent and a paragraph sign.
constexpr std::string_view kFurtherSigns = "',;\"#$%&@<>[]{}^|~`\xB4\xA7";
/// Umlauts and sharp s.
constexpr std::string_view kUmlauts = "\xC4\xD6\xDC\xE4\xF6\xFC\xDF";
/// For a sheet that ends inside its cells of Z and z.
constexpr std::string_view kUmlautsAndZ = "\xC4\xD6\xDC\xE4\xF6\xFC\xDFZz";

constexpr std::array<FontMetrics, kBitmapFonts> kFonts = {
    {{Standard::kFont1, 700, 1400, 0, kBeside, kUmlauts},
     {Standard::kFont2, 905, 1650, 0, kBeside, kUmlauts},
     {Standard::kFont3, 1700, 2300, 600, kBelow, kUmlautsAndZ},
     {Standard::kFont4, 800, 1500, 0, kBeside, kUmlauts},
     {Standard::kFont5, 1670, 2400, 500, kBelow, kUmlauts},
     {Standard::kFont6, 1100, 2100, 200, kBelow, kUmlauts}}};

constexpr int kFirstSign = 11;
constexpr std::string_view kSigns = ".:-+*/()=\\_!?";
/// Blanks and all characters without a cell of their own.
constexpr GlyphCell kOtherCell{10, 2};

/// Exact: when a quotient of whole numbers ends in a half, so does its binary form.
int ToPixels(int hundredths) {
  return RoundToInt(static_cast<double>(hundredths) / kPixel);
}

const FontMetrics& Metrics(int font) {
  return kFonts.at(static_cast<std::size_t>(font - 1));
}

/// False in the further cells of a sheet that has none.
bool HasInk(const Picture& glyph) {
  return !glyph.Opaque().groups.empty();
}

Picture CutGlyph(int font, const Picture& sheet, char character) {
  if (const auto further = FurtherCellOf(font, character)) {
    if (Picture glyph = sheet.Cut(GlyphRect(font, *further)); HasInk(glyph)) return glyph;
  }
  return sheet.Cut(GlyphRect(font, CellOf(character)));
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

std::optional<GlyphCell> FurtherCellOf(int font, char character) {
  const auto& [column, row] = Metrics(font).further;
  if (const auto sign = kFurtherSigns.find(character); sign != std::string_view::npos) {
    return GlyphCell{column + static_cast<int>(sign), row};
  }
  const std::size_t letter = Metrics(font).furtherLetters.find(character);
  if (letter == std::string_view::npos) return std::nullopt;
  return GlyphCell{column + static_cast<int>(letter), row + 1};
}

Rect GlyphRect(int font, GlyphCell cell) {
  const FontMetrics& metrics = Metrics(font);
  return {ToPixels(cell.column * metrics.width), ToPixels(cell.row * metrics.height),
          ToPixels((cell.column + 1) * metrics.width - kPixel),
          ToPixels((cell.row + 1) * metrics.height)};
}

void BitmapFonts::CutGlyphs(const StandardPictures& sheets) {
  for (int font = 1; font <= kBitmapFonts; ++font) {
    fonts_[static_cast<std::size_t>(font - 1)] = Cut(font, sheets(Metrics(font).sheet));
  }
}

BitmapFonts::Font BitmapFonts::Cut(int font, const Picture& sheet) {
  Font cut;
  cut.glyphs.front() = sheet.Cut(GlyphRect(font, kOtherCell));
  for (std::size_t code = 0; code < cut.glyphOf.size(); ++code) {
    const char character = static_cast<char>(code);
    if (CellOf(character) == kOtherCell && !FurtherCellOf(font, character)) continue;
    cut.glyphOf.at(code) = static_cast<std::uint8_t>(cut.glyphs.size());
    cut.glyphs.push_back(CutGlyph(font, sheet, character));
  }
  return cut;
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
  const Font& shapes = fonts_[static_cast<std::size_t>(font - 1)];
  int left = x * kPixel - metrics.tightening;
  for (const char character : text.substr(0, kLongestText)) {
    const std::uint8_t glyph = shapes.glyphOf[static_cast<std::uint8_t>(character)];
    target.Blit(shapes.glyphs[glyph], ToPixels(left), y);
    left += metrics.width - metrics.tightening;
  }
}

}  // namespace coilrun
