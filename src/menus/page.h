#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "menus/context.h"

namespace coilrun {

/// What a key asks the line under the cursor to do.
enum class LineAct : std::uint8_t { kNone, kEnter, kLeft, kRight, kEmpty };

/// One line of a page.
struct Line {
  Point at = {};
  int width = 300;
  std::string_view label = {};
  /// What stands after the label; null for nothing.
  std::string (*value)(MenuContext& menus, int subject) = nullptr;
  std::string_view help = {};
  void (*act)(MenuContext& menus, LineAct act, int subject) = nullptr;
  /// What the line is about, where several lines share their functions.
  int subject = 0;
  TextLook (*look)(MenuContext& menus, int subject) = nullptr;
  /// Drawn before the line.
  std::string_view heading = {};
  Point headingAt = {};
};
using Lines = std::vector<Line>;

void DrawLines(MenuContext& menus, const Lines& lines);
/// Draws the line under the cursor again, lit.
void DrawLit(MenuContext& menus, const Line& line);

/// The number, from 1, of the line at a place on the screen; 0 for none.
int LineAt(const Lines& lines, Point place);

/// A cursor that moves past its lines comes back in at the other end.
inline int Wrapped(int cursor, int lines) {
  if (cursor < 1) return lines;
  return cursor > lines ? 1 : cursor;
}

/// -1 for Left, 1 for Right, otherwise 0.
inline int StepOf(LineAct act) {
  return static_cast<int>(act == LineAct::kRight) - static_cast<int>(act == LineAct::kLeft);
}
/// The same, but Enter counts as Right.
inline int StepOrEnter(LineAct act) {
  return act == LineAct::kEnter ? 1 : StepOf(act);
}

/// The text of a switch: "yes" or "no".
inline std::string YesNo(bool value) {
  return value ? "yes" : "no";
}

}  // namespace coilrun
