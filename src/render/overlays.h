#pragma once

#include <string>
#include <string_view>

#include "model/state.h"
#include "render/canvas.h"
#include "render/item_pictures.h"
#include "render/standard_pictures.h"
#include "render/text_painter.h"

namespace coilrun {

/// What lies over the play field: texts, counters, statistics, and the pictures of the screens.
class Overlays {
 public:
  Overlays(const State& state, Canvas& canvas, const StandardPictures& standard,
           ItemPictures& items, TextPainter& text, std::string version);

  void DrawMessageFeed();
  /// The status line and, when it is on, the frame counter.
  void DrawStatusLine();
  void DrawItemPanel();
  void DrawMatchStats();
  void DrawCenterLines();
  /// What a wait lays over the frame: the time-limit texts or the game-over picture.
  void DrawWaitOverlay();

  /// The level-start / statistics screen over a complete frame.
  void DrawLevelScreenPage();
  /// The pause picture over a complete frame.
  void DrawPausePicture();

 private:
  void DrawMatchGoal();
  void DrawLevelGoals();
  void DrawLights();

  const State& state_;
  Canvas& canvas_;
  const StandardPictures& standard_;
  ItemPictures& items_;
  TextPainter& text_;
  std::string version_;
};

/// "st", "nd", "rd", "th" (11, 12 and 13 too); "" for 0 and less.
std::string_view OrdinalSuffix(int number);

}  // namespace coilrun
