#include "render/canvas.h"

#include <utility>

namespace coilrun {

void Canvas::FillBack(Color color) {
  back_.Fill(color);
  witness_.drawing.clear();
}

void Canvas::DrawWhole(const Picture& picture) {
  constexpr Rect kScreen{0, 0, kScreenWidth, kScreenHeight};
  if (picture.Bounds() != kScreen) return FillBack({});
  back_.Blit(picture, kScreen, 0, 0, false);
  witness_.drawing.clear();
}

void Canvas::RecordText(std::string_view text, int x, int y, std::string_view font) {
  if (!witness_.enabled || text.empty()) return;
  witness_.drawing.push_back({std::string{text}, x, y, std::string{font}});
}

void Canvas::FlipBuffers() {
  std::swap(back_, primary_);
  if (witness_.enabled) witness_.shown = witness_.drawing;
}

}  // namespace coilrun
