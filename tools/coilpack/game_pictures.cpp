#include "game_pictures.h"

#include <algorithm>
#include <set>

#include "kit/game_picture.h"
#include "model/animation.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

bool IsModelPack(std::string_view archive) {
  return FoldCase(archive).ends_with(".smp");
}

/// FOLDER for a picture named FOLDER/N.bmp, where N is the number of a frame; "" for others.
std::string FolderOfFrames(const std::string& name) {
  const std::size_t slash = name.rfind('/');
  if (slash == name.npos) return "";
  const std::string folder = name.substr(0, slash);
  for (int frame = 1; frame <= kAnimationFrames; ++frame) {
    if (name == folder + '/' + std::to_string(frame) + ".bmp") return folder;
  }
  return "";
}

class Conversion {
 public:
  Conversion(std::string_view archive, std::vector<RarSource>& sources)
      : keysByFolder_(!IsModelPack(archive)), sources_(sources) {}

  ConvertedPictures Run() {
    for (RarSource& source : sources_) {
      if (!source.folder && IsPngName(source.name)) Convert(source);
      if (!result_.problem.empty()) return result_;
    }
    const auto byName = [](const RarSource& a, const RarSource& b) { return a.name < b.name; };
    std::sort(sources_.begin(), sources_.end(), byName);
    const auto twin =
        std::adjacent_find(sources_.begin(), sources_.end(),
                           [](const auto& a, const auto& b) { return a.name == b.name; });
    if (twin != sources_.end()) result_.problem = twin->name + ": is there as PNG and as BMP";
    return result_;
  }

 private:
  void Convert(RarSource& source) {
    const PngPicture picture = DecodePng(source.contents);
    if (!picture.problem.empty()) {
      result_.problem = source.name + ": " + picture.problem;
      return;
    }
    source.name.replace(source.name.size() - 3, 3, "bmp");
    const KeyMode key = keysByFolder_ ? KeyOf(source.name) : KeyMode::kBlack;
    source.contents = GameBmp(picture, key);
    if (keysByFolder_ && key == KeyMode::kBlack && HasTransparentPixels(picture)) {
      WarnOfFrames(FolderOfFrames(source.name));
    }
  }

  void WarnOfFrames(const std::string& folder) {
    if (folder.empty() || !warned_.insert(folder).second) return;
    result_.warnings.push_back(folder +
                               ": transparent pixels of frames turn black once the window has "
                               "lost the focus; paint a background behind them");
  }

  bool keysByFolder_;
  std::vector<RarSource>& sources_;
  std::set<std::string> warned_;
  ConvertedPictures result_;
};

}  // namespace

bool IsGameArchive(std::string_view archive) {
  return IsModelPack(archive) || FoldCase(archive).ends_with(".snr");
}

ConvertedPictures ConvertPictures(std::string_view archive, std::vector<RarSource>& sources) {
  return Conversion(archive, sources).Run();
}

}  // namespace coilrun
