#include "menus/page.h"

#include <algorithm>

namespace coilrun {
namespace {

constexpr int kLineHeight = 18;

void DrawLine(MenuContext& menus, const Line& line, TextLook look) {
  std::string text{line.label};
  if (line.value != nullptr) text += line.value(menus, line.subject);
  menus.renderer.Menus().DrawText(text, line.at, look);
}

bool Covers(const Line& line, Point place) {
  return place.x >= line.at.x && place.x < line.at.x + line.width && place.y >= line.at.y &&
         place.y < line.at.y + kLineHeight;
}

}  // namespace

void DrawLines(MenuContext& menus, const Lines& lines) {
  for (const Line& line : lines) {
    const TextLook look = line.look == nullptr ? TextLook::kPlain : line.look(menus, line.subject);
    if (!line.heading.empty()) {
      const bool isDimmed = look == TextLook::kDimmed;
      menus.renderer.Menus().DrawText(line.heading, line.headingAt,
                                      isDimmed ? look : TextLook::kPlain);
    }
    DrawLine(menus, line, look);
  }
}

void DrawLit(MenuContext& menus, const Line& line) {
  DrawLine(menus, line, TextLook::kLit);
}

int LineAt(const Lines& lines, Point place) {
  const auto found = std::find_if(lines.begin(), lines.end(),
                                  [place](const Line& line) { return Covers(line, place); });
  return found == lines.end() ? 0 : static_cast<int>(found - lines.begin()) + 1;
}

}  // namespace coilrun
