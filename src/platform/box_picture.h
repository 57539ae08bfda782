#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ports/text_face.h"

namespace coilrun {

/// A picture of the screen, 640 x 480 pixels.
using BoxPicture = std::vector<std::uint32_t>;

/// A message on a panel in the middle of a dark screen, its lines broken to fit, above the keys
/// that answer it. Texts are Windows-1252 with "\n" as line break.
BoxPicture DrawBox(TextFace& face, const std::string& title, const std::string& text,
                   bool isQuestion);

}  // namespace coilrun
