#pragma once

#include <string_view>

#include "model/state.h"
#include "ports/text_face.h"
#include "render/bitmap_font.h"
#include "render/canvas.h"

namespace coilrun {

/// Draws all texts on the back buffer: bitmap fonts, and system fonts in the current style.
class TextPainter {
 public:
  TextPainter(const State& state, Canvas& canvas, TextFace& textFace);

  void CutGlyphs(const StandardPictures& sheets) { fonts_.CutGlyphs(sheets); }

  /// Draws a text in bitmap font 1 to 6 (no other number draws anything) and returns its width.
  int DrawBmpText(std::string_view text, int x, int y, int font, bool measureOnly = false);
  /// Draws it in the middle of the screen's width and returns the x that it used.
  int DrawBmpTextCentred(std::string_view text, int y, int font);

  /// "Standart": Balloon, 14 points, dark red. Any other name changes nothing.
  void SetTextStyle(std::string_view style);
  void SetFont(FontStyle font) { font_ = std::move(font); }
  void SetColor(Color color) { color_ = color; }
  /// Draws a text in the current style with its top left at `x`, `y`.
  void DrawSystemText(std::string_view text, int x, int y);

  /// Draws names over the snakes' heads if N was the last key or all are to be shown.
  void DrawSnakeNames(bool showAll);

 private:
  const State& state_;
  Canvas& canvas_;
  TextFace& textFace_;
  BitmapFonts fonts_;
  FontStyle font_{"Balloon", 14, false};
  Color color_{150, 0, 0};
};

}  // namespace coilrun
