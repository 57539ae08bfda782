#pragma once

#include <string_view>

#include "model/state.h"
#include "render/surface.h"

namespace coilrun {

/// The back buffer that everything is drawn on, the primary buffer that is shown, and the log of
/// the texts on them.
class Canvas {
 public:
  explicit Canvas(OutputLog& log) : log_(log) {}

  /// The back buffer: BltPic.
  Surface& Back() { return back_; }
  const Surface& Back() const { return back_; }
  /// The shown buffer: BltPicFront, fades, the intro panel.
  Surface& Primary() { return primary_; }
  const Surface& Primary() const { return primary_; }

  /// Fills the whole back buffer and forgets its texts.
  void FillBack(Color color);
  /// Draws a picture the size of the screen without its colour key; without a picture the back
  /// buffer is black.
  void DrawWhole(const Picture& picture);
  /// Notes a text that was drawn on the back buffer, unless it is empty.
  void RecordText(std::string_view text, int x, int y, std::string_view font);
  /// Swaps the two buffers: the new back buffer holds an older frame.
  void FlipBuffers();

 private:
  OutputLog& log_;
  Surface back_;
  Surface primary_;
};

}  // namespace coilrun
