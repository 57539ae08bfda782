#pragma once

#include <string>
#include <string_view>

namespace coilrun {

/// Pictures of an animated item or wall, numbered from 1.
inline constexpr int kAnimationFrames = 45;
/// Steps of the slower rhythm beside the frames, numbered from 0.
inline constexpr int kAnimationPhases = 5;

/// Name of a frame's picture; `folder` lies below the gfx folder and ends in "\".
inline std::string FrameFile(std::string_view folder, int frame) {
  return std::string{folder} + std::to_string(frame) + ".bmp";
}

}  // namespace coilrun
