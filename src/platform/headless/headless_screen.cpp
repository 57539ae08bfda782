#include "platform/headless/headless_screen.h"

#include <algorithm>

#include "platform/png_file.h"

namespace coilrun {

void HeadlessScreen::Flip(ScreenPixels primary) {
  Present(primary);
  clock_.FlipAdvance();
}

void HeadlessScreen::Present(ScreenPixels primary) {
  std::copy(primary.begin(), primary.end(), shown_.begin());
}

bool HeadlessScreen::WriteShot(const std::string& file) {
  return WritePng(file, ScreenPixels(shown_));
}

}  // namespace coilrun
