#include "pictures.h"

#include <algorithm>

#include "content/archives.h"
#include "platform/disk_files.h"
#include "platform/rar/rar_archive.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

std::string NormalName(std::string name) {
  std::replace(name.begin(), name.end(), '/', '\\');
  return FoldCase(name);
}

/// Adds the name and every folder in front of it.
void AddWithFolders(std::set<std::string>& names, const std::string& name) {
  for (std::size_t end = name.find('\\'); end != name.npos; end = name.find('\\', end + 1)) {
    names.insert(name.substr(0, end));
  }
  names.insert(name);
}

}  // namespace

std::filesystem::path ProgramFolderOf(const std::filesystem::path& levelFile) {
  return std::filesystem::absolute(levelFile).parent_path().parent_path();
}

Pictures::Pictures(const std::filesystem::path& levelFile) : folder_(ProgramFolderOf(levelFile)) {
  std::error_code ignored;
  const std::filesystem::path loose = folder_ / "gfx";
  for (auto entry = std::filesystem::recursive_directory_iterator(loose, ignored);
       !ignored && entry != std::filesystem::recursive_directory_iterator();
       entry.increment(ignored)) {
    std::filesystem::path name = entry->path().lexically_relative(loose);
    // The game's sources hold PNG files, which the build turns into bitmaps.
    if (name.extension() == ".png") name.replace_extension(".bmp");
    AddWithFolders(names_, NormalName(name.string()));
    known_ = true;
  }
  DiskFiles files(folder_, std::nullopt);
  RarArchive archive(files);
  if (!archive.Open(".\\gfx.snr")) return;
  known_ = true;
  archive.SetPassword(std::string{kArchivePassword});
  constexpr std::string_view kFolder = "gfx\\";
  while (const auto header = archive.ReadHeader()) {
    const std::string name = NormalName(*header);
    if (name.starts_with(kFolder)) AddWithFolders(names_, name.substr(kFolder.size()));
    archive.ProcessFile(std::nullopt);
  }
  archive.Close();
}

bool Pictures::Has(const std::string& name) const {
  return !known_ || names_.count(NormalName(name)) != 0;
}

bool Pictures::HasFile(const std::string& folder, const std::string& name) const {
  if (!known_) return true;
  std::error_code ignored;
  const std::filesystem::directory_iterator files(folder_ / folder, ignored);
  return std::any_of(begin(files), end(files), [&](const auto& file) {
    return FoldCase(file.path().filename().string()) == FoldCase(name);
  });
}

}  // namespace coilrun
