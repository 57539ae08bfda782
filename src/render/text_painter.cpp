#include "render/text_painter.h"

#include <array>

#include "model/numbers.h"
#include "model/snakes_in_play.h"
#include "ports/scan_codes.h"

namespace coilrun {
namespace {

constexpr int kHalfCell = 10;
constexpr std::array<std::string_view, kBitmapFonts> kFontNames = {"1", "2", "3", "4", "5", "6"};

}  // namespace

TextPainter::TextPainter(const State& state, Canvas& canvas, TextFace& textFace)
    : state_(state), canvas_(canvas), textFace_(textFace) {}

int TextPainter::DrawBmpText(std::string_view text, int x, int y, int font, bool measureOnly) {
  if (!BitmapFonts::Exists(font)) return 0;
  if (!measureOnly) {
    fonts_.Draw(canvas_.Back(), text, x, y, font);
    canvas_.RecordText(text, x, y, kFontNames[static_cast<std::size_t>(font - 1)]);
  }
  return BitmapFonts::Width(text, font);
}

int TextPainter::DrawBmpTextCentred(std::string_view text, int y, int font) {
  const int x = RoundToInt(kScreenWidth / 2.0 - BitmapFonts::Width(text, font) / 2.0);
  DrawBmpText(text, x, y, font);
  return x;
}

void TextPainter::SetTextStyle(std::string_view style) {
  if (style != "Standart") return;
  font_ = {"Balloon", 14, false};
  color_ = {150, 0, 0};
}

void TextPainter::DrawSystemText(std::string_view text, int x, int y) {
  if (text.empty()) return;
  canvas_.Back().BlendText(textFace_.Render(font_, text), x, y, color_);
  canvas_.RecordText(text, x, y, font_.face);
}

void TextPainter::DrawSnakeNames(bool showAll) {
  if (!showAll && state_.keys.KeyPressed != kKeyN) return;
  for (int s = 1; s <= SnakesInPlay(state_); ++s) {
    const SnakeRec& snake = state_.Snakes(s);
    SetFont({"Arial", 7, false});
    SetColor({200, 0, 0});
    const int width = textFace_.Measure(font_, snake.Name);
    DrawSystemText(snake.Name, RoundToInt(snake.X + kHalfCell - width / 2.0), snake.Y - kHalfCell);
    SetTextStyle("Standart");
  }
}

}  // namespace coilrun
