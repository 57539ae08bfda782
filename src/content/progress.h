#pragma once

#include <string>

#include "content/context.h"

namespace coilrun {

/// Changes the caption of the intro panel.
inline void ShowCaption(const ContentContext& context, const std::string& caption) {
  context.state.feed.introCaption = caption;
  context.host.ShowProgress();
}

/// Changes the length of the progress bar of the intro panel.
inline void ShowPercent(const ContentContext& context, double percent) {
  context.state.feed.introProgress = percent;
  context.host.ShowProgress();
}

}  // namespace coilrun
