#pragma once

#include "render/canvas.h"
#include "render/text_painter.h"

namespace coilrun {

/// Draws the end of a match: who has won, above the table of all snakes in play.
void DrawMatchResult(const State& state, Canvas& canvas, TextPainter& text);

}  // namespace coilrun
