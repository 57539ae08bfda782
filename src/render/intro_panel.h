#pragma once

#include "model/state.h"
#include "ports/files.h"
#include "ports/pump.h"
#include "ports/text_face.h"
#include "render/canvas.h"

namespace coilrun {

/// The panel that shows the progress of loading: caption, console lines and a bar, drawn straight
/// on the primary buffer.
class IntroPanel {
 public:
  IntroPanel(State& state, Canvas& canvas, TextFace& textFace, Pump& pump, const Files& files);

  /// Draws the panel as the feed describes it and presents it; does nothing while it is hidden.
  void Show();
  /// Sets caption and progress (percent) and shows the panel.
  void SetCaption(std::string_view caption);
  void SetProgress(double percent);

 private:
  void DrawBackground();
  void DrawConsole();
  void DrawBar();
  void DrawText(std::string_view text, int x, int y, Color color);

  State& state_;
  Canvas& canvas_;
  TextFace& textFace_;
  Pump& pump_;
  const Files& files_;
  Picture picture_;
  bool pictureTried_ = false;
};

}  // namespace coilrun
