#include "content/user_items.h"

#include "content/progress.h"
#include "model/animation.h"
#include "model/feed.h"

namespace coilrun {
namespace {

bool Preload(const ContentContext& context, const std::string& name) {
  if (!context.host.PreloadUserItem(name)) return false;
  DebugPrint(context.state, "Preloading UserItem (" + name + ")");
  return true;
}

bool PreloadStill(const ContentContext& context, const std::string& name) {
  return context.host.HoldsPicture(name) || Preload(context, name);
}

bool PreloadAnimated(const ContentContext& context, const std::string& name) {
  const std::string folder = name + "\\";
  if (context.host.HoldsPicture(FrameFile(folder, 1))) return true;
  for (int frame = 1; frame <= kAnimationFrames; ++frame) {
    if (!Preload(context, FrameFile(folder, frame))) return false;
    ShowPercent(context, frame * 100.0 / kAnimationFrames);
  }
  return true;
}

}  // namespace

bool LoadUserItems(const ContentContext& context) {
  State& state = context.state;
  if (state.numUserItems < 1) return true;
  ShowCaption(context, "Loading UserItems...");
  for (int slot = 1; slot <= state.numUserItems; ++slot) {
    const UserItemRec item = state.UserItems(slot);
    if (IsStill(item.Type) && !PreloadStill(context, item.Name)) return false;
    if (IsMoving(item.Type) && !PreloadAnimated(context, item.Name)) return false;
  }
  return true;
}

}  // namespace coilrun
