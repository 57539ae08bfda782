#pragma once

#include <array>
#include <string>
#include <string_view>

#include "model/state.h"
#include "render/canvas.h"
#include "render/item_pictures.h"
#include "render/model_pictures.h"
#include "render/standard_pictures.h"
#include "render/text_painter.h"

namespace coilrun {

/// How a text on a page looks.
enum class TextLook : std::uint8_t { kPlain, kDimmed, kLit, kWarning };

/// The words "Tab  More" on the main page.
inline constexpr Rect kMoreText{290, 330, 370, 348};

/// The menu pages, drawn from the state in pieces: what changes between the pieces (cursor, lit
/// entry, ticker, values) is up to the caller.
class MenuPages {
 public:
  MenuPages(const State& state, Canvas& canvas, const StandardPictures& standard,
            const ModelPictures& models, ItemPictures& items, TextPainter& text,
            std::string version);

  /// Main page: background, buttons, the lit entry with its banana, status line and version.
  void DrawMainPage();
  /// The credits ticker and the hint to further pages; comes last on the main page.
  void DrawMainPageFoot();

  void DrawOptionsBackground();
  /// The options page's background with the title of another page.
  void DrawPageBackground(MorePage page);
  void DrawText(std::string_view text, Point at, TextLook look);
  /// The head, body and tail of the player's model, on the options page.
  void DrawModelPreview();
  /// Status line and version; comes last on a page.
  void DrawStatus(std::string_view status);

  /// The whole high-score page.
  void DrawHighScorePage();

 private:
  void DrawButton(Standard picture, int y);
  void DrawLitButton(Standard picture, int y);

  const State& state_;
  Canvas& canvas_;
  const StandardPictures& standard_;
  const ModelPictures& models_;
  ItemPictures& items_;
  TextPainter& text_;
  std::string version_;
  std::array<NamedPicture, 5> titles_;  ///< by page
};

/// The colour of step 0 to 60 in the fades of the menus.
Color FadeColor(int step);

}  // namespace coilrun
