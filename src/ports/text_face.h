#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace coilrun {

/// A system font: face name ("Arial", "Courier New", "Balloon"), size in points, weight.
struct FontStyle {
  std::string face;
  int size = 10;
  bool bold = false;

  bool operator==(const FontStyle&) const = default;
};

/// A rendered text: coverage from 0 to 255 for each pixel, row by row.
struct TextMask {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> coverage;
};

/// Renders texts in system fonts. Texts are Windows-1252.
class TextFace {
 public:
  virtual ~TextFace() = default;

  /// Width in pixels; 0 when no font can be opened.
  virtual int Measure(const FontStyle& style, std::string_view text) = 0;
  /// The rendered text, cached; valid until the next call. Empty when no font can be opened.
  virtual const TextMask& Render(const FontStyle& style, std::string_view text) = 0;
};

}  // namespace coilrun
