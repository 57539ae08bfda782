#pragma once

#include <string>

#include "model/state.h"
#include "render/canvas.h"
#include "render/item_pictures.h"
#include "render/model_pictures.h"
#include "render/standard_pictures.h"
#include "render/text_painter.h"

namespace coilrun {

/// The pages of the menus, drawn from the state in pieces: what changes between the pieces (cursor,
/// lit entry, ticker, values) is the caller's.
class MenuPages {
 public:
  MenuPages(const State& state, Canvas& canvas, const StandardPictures& standard,
            const ModelPictures& models, ItemPictures& items, TextPainter& text,
            std::string version);

  /// Main page: background, buttons, the lit entry with its banana, status line and version.
  void DrawMainPage();
  /// The credits ticker, last on the main page.
  void DrawTicker();

  /// Options page: background, headings and the fourteen lines as they stand, the model's preview.
  void DrawOptionsLines();
  /// The cursor's line again, with its new value, highlighted.
  void DrawOptionsCursorLine();
  /// Status line and version, last on the options page.
  void DrawOptionsFooter();

  /// The whole high-score page.
  void DrawHighScorePage();

 private:
  void DrawStatus(std::string_view status);
  void DrawModelPreview();
  void DrawButton(Standard picture, int y);
  void DrawLitButton(Standard picture, int y);

  const State& state_;
  Canvas& canvas_;
  const StandardPictures& standard_;
  const ModelPictures& models_;
  ItemPictures& items_;
  TextPainter& text_;
  std::string version_;
};

/// Colour of step 0 to 60 of the menus' fades.
Color FadeColor(int step);

}  // namespace coilrun
