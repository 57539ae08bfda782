#include "model_check.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>

#include "content/lines.h"
#include "content/model_ini.h"
#include "ports/windows_1252.h"
#include "render/bitmap.h"
#include "render/model_pictures.h"

namespace coilrun {
namespace {

/// The files of a pack, found by name the way the game does.
class PackFiles {
 public:
  explicit PackFiles(RarReader& reader) : reader_(reader) {
    for (std::size_t i = 0; i < reader.Entries().size(); ++i) {
      const RarEntry& entry = reader.Entries()[i];
      if (!entry.folder) byName_[SearchName(entry.name)] = i;
    }
  }

  bool HasFolder(const std::string& folder) const {
    const std::string start = SearchName(folder + '/');
    const auto first = byName_.lower_bound(start);
    return first != byName_.end() && first->first.starts_with(start);
  }
  bool Has(const std::string& name) const { return byName_.contains(SearchName(name)); }
  /// Nothing when there is no such file; no bytes when it cannot be read.
  std::optional<Bytes> Read(const std::string& name) {
    const auto found = byName_.find(SearchName(name));
    if (found == byName_.end()) return std::nullopt;
    return reader_.Read(found->second).bytes;
  }

 private:
  static std::string SearchName(const std::string& name) {
    std::string folded = FoldCase(name);
    std::replace(folded.begin(), folded.end(), '\\', '/');
    return folded;
  }

  RarReader& reader_;
  std::map<std::string, std::size_t> byName_;
};

ModelPack Described(PackFiles& files, const std::string& folder) {
  const auto ini = files.Read(folder + "/model.ini");
  if (!ini) return UndescribedPack("", folder);
  ModelPack pack;
  ReadModelIni(TextOf(*ini), pack);
  return pack;
}

std::string SizeText(int width, int height) {
  return std::to_string(width) + " x " + std::to_string(height);
}

/// What is wrong with one picture; "" when nothing is.
std::string PictureFault(PackFiles& files, const std::string& name) {
  const auto file = files.Read(name);
  if (!file) {
    const std::string png = name.substr(0, name.size() - 3) + "png";
    if (!files.Has(png)) return "is missing";
    return "is missing; the game reads no PNG, but \"coilpack create\" turns it into a BMP";
  }
  const auto bitmap = DecodeBmp(*file);
  if (!bitmap) return "is not a bitmap that the game reads";
  if (bitmap->width == kModelSide && bitmap->height == kModelSide) return "";
  return "has " + SizeText(bitmap->width, bitmap->height) + " pixels instead of " +
         SizeText(kModelSide, kModelSide);
}

}  // namespace

std::vector<std::string> ModelFaults(const std::string& archive, RarReader& reader) {
  const std::filesystem::path path = archive;
  if (FoldCase(path.extension().string()) != ".smp") {
    return {"the game looks for packs whose names end in \".smp\""};
  }
  const std::string folder = path.stem().string();
  PackFiles files(reader);
  if (!files.HasFolder(folder)) return {"holds no folder \"" + folder + "\""};
  std::vector<std::string> faults;
  for (const std::string_view file : ModelFiles(Described(files, folder))) {
    const std::string name = folder + '/' + std::string{file};
    const std::string fault = PictureFault(files, name);
    if (!fault.empty()) faults.push_back(name + ' ' + fault);
  }
  return faults;
}

}  // namespace coilrun
