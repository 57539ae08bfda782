#pragma once

#include <string_view>

#include "model/state.h"
#include "render/surface.h"

namespace coilrun {

/// The back buffer that everything is drawn on, the primary that is shown, and the log of the
/// texts on them.
class Canvas {
 public:
  explicit Canvas(OutputLog& log) : log_(log) {}

  /// The back buffer: BltPic.
  Surface& Back() { return back_; }
  const Surface& Back() const { return back_; }
  /// The shown buffer: BltPicFront, fades, the intro panel.
  Surface& Primary() { return primary_; }
  const Surface& Primary() const { return primary_; }

  /// Fills the whole back buffer; its texts are gone.
  void FillBack(Color color);
  /// Draws a picture of the size of the screen, unkeyed, over a back buffer that is black where
  /// there is none.
  void DrawWhole(const Picture& picture);
  /// Notes a text that was drawn on the back buffer; an empty one is not worth a note.
  void RecordText(std::string_view text, int x, int y, std::string_view font);
  /// Swaps back and primary: the new back buffer holds an older frame.
  void FlipBuffers();

 private:
  OutputLog& log_;
  Surface back_;
  Surface primary_;
};

}  // namespace coilrun
