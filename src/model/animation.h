#pragma once

#include <string>
#include <string_view>

namespace coilrun {

/// How many pictures an animated item or wall has, numbered from 1.
inline constexpr int kAnimationFrames = 45;
/// Steps of a slower rhythm that runs beside the frames, numbered from 0.
inline constexpr int kAnimationPhases = 5;

/// Name of a frame's picture; `folder` lies below the gfx folder and ends in "\".
inline std::string FrameFile(std::string_view folder, int frame) {
  return std::string{folder} + std::to_string(frame) + ".bmp";
}

}  // namespace coilrun
