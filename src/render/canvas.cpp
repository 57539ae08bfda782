#include "render/canvas.h"

#include <utility>

namespace coilrun {

void Canvas::FillBack(Color color) {
  back_.Fill(color);
  log_.drawing.clear();
}

void Canvas::DrawWhole(const Picture& picture) {
  constexpr Rect kScreen{0, 0, kScreenWidth, kScreenHeight};
  if (picture.Bounds() != kScreen) return FillBack({});
  back_.Blit(picture, kScreen, 0, 0, false);
  log_.drawing.clear();
}

void Canvas::RecordText(std::string_view text, int x, int y, std::string_view font) {
  if (!log_.enabled || text.empty()) return;
  log_.drawing.push_back({std::string{text}, x, y, std::string{font}});
}

void Canvas::FlipBuffers() {
  std::swap(back_, primary_);
  if (log_.enabled) log_.shown = log_.drawing;
}

}  // namespace coilrun
