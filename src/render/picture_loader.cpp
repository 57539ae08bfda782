#include "render/picture_loader.h"

#include <utility>

#include "model/feed.h"
#include "ports/screen.h"

namespace coilrun {

PictureLoader::PictureLoader(State& state, const Files& files, MessageBox& messageBox,
                             IntroPanel& panel, std::function<void()> giveUp)
    : state_(state),
      files_(files),
      messageBox_(messageBox),
      panel_(panel),
      giveUp_(std::move(giveUp)) {}

Picture PictureLoader::DD_CreateSurfFromFile(const std::string& path,
                                             std::optional<PictureSize> size, KeyMode key,
                                             LoadFlags flags) {
  DebugPrint(state_, "DD_CreateSurfFromFile: processing " + path.substr(kProgramFolder.size()));
  Picture picture = Load(path, size, key);
  if (flags.counted || !picture.IsSet()) ++state_.feed.LoadedCount;
  if (!picture.IsSet() && !state_.shell.DisplayReady && !files_.Exists(path)) {
    TellMissing(path, flags.modelPicture);
  } else if (!picture.IsSet() && size && files_.Exists(path)) {
    ConsolePrint(state_, "DD_CreateSurfFromFile: unable to read " + path);
  }
  if (flags.counted && !state_.shell.DisplayReady) ReportProgress();
  return picture;
}

Picture PictureLoader::Load(const std::string& path, std::optional<PictureSize> size, KeyMode key) {
  const auto file = files_.Read(path);
  if (!file) return {};
  auto bitmap = DecodeBmp(*file);
  if (!bitmap) return {};
  if (!size) {
    // Nothing larger than the screen is ever drawn whole.
    if (bitmap->width > kScreenWidth || bitmap->height > kScreenHeight) return {};
  } else if (size->width != bitmap->width || size->height != bitmap->height) {
    bitmap = Resized(*bitmap, size->width, size->height);
  }
  return {std::move(*bitmap), key};
}

void PictureLoader::TellMissing(const std::string& path, bool modelPicture) {
  if (modelPicture) return ConsolePrint(state_, "Could not load model " + path);
  const std::string problem = files_.WriteProblem(path);
  const std::string reason = problem.empty() ? "53: File not found" : problem;
  const BoxAnswer answer =
      messageBox_.Show("module 'DD_CreateSurfFromFile': >file/IO error<",
                       "Could not open '" + path + "' Coilrun will not work properly!\n(" + reason +
                           ")\n\nTry to reinstall Coilrun.\nTo continue anyways choose yes...",
                       BoxButtons::kYesNo);
  if (answer == BoxAnswer::kNo) giveUp_();
}

void PictureLoader::ReportProgress() {
  const FeedState& feed = state_.feed;
  if (feed.LoadTotal <= 0) return;
  panel_.SetProgress((feed.LoadedCount + feed.UnpackedCount) / 2.0 * 100 / (feed.LoadTotal * 2.0));
}

}  // namespace coilrun
