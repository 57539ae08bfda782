#pragma once

#include <string>
#include <string_view>

#include "content/context.h"

namespace coilrun {

inline constexpr int kAnimationFrames = 45;

/// Types are told by their beginnings: "wall..." shows a still picture, "ani_wall..." 45 frames.
bool IsStillType(std::string_view type);
bool IsAnimatedType(std::string_view type);
/// Name of frame 1 to 45 of an animated user item, below the gfx folder.
std::string FrameName(const std::string& name, int frame);

/// Loads the pictures of all user items of the level. False when one cannot be loaded.
bool LoadUserItems(const ContentContext& context);

}  // namespace coilrun
