#include "target_folder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace coilrun {
namespace {

constexpr mode_t kFolderMode = 0777;

std::vector<std::string> PartsOf(std::string_view name) {
  std::vector<std::string> parts;
  while (!name.empty()) {
    const std::string_view part = name.substr(0, name.find_first_of("/\\"));
    if (!part.empty() && part != ".") parts.emplace_back(part);
    name.remove_prefix(std::min(part.size() + 1, name.size()));
  }
  return parts;
}

std::string Reason(const std::string& what) {
  return "cannot " + what + ": " + std::strerror(errno);
}

FileHandle OpenFolder(const FileHandle& parent, const std::string& name) {
  if (::mkdirat(parent.Descriptor(), name.c_str(), kFolderMode) != 0 && errno != EEXIST) return {};
  return {parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW};
}

/// The folder that `parts` lead to; folders that are missing on the way are made.
FileHandle OpenPath(const FileHandle& root, std::span<const std::string> parts) {
  FileHandle folder(root, ".", O_RDONLY | O_DIRECTORY);
  for (const std::string& part : parts) {
    if (folder.IsOpen()) folder = OpenFolder(folder, part);
  }
  return folder;
}

void SetTime(const FileHandle& file, std::int64_t mtime) {
  if (!std::in_range<std::time_t>(mtime)) return;
  const timespec time{static_cast<std::time_t>(mtime), 0};
  const std::array<timespec, 2> times = {time, time};
  ::futimens(file.Descriptor(), times.data());
}

FileHandle OpenRoot(const std::string& folder) {
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  return {folder, O_RDONLY | O_DIRECTORY};
}

}  // namespace

TargetFolder::TargetFolder(const std::string& folder) : root_(OpenRoot(folder)) {}

std::string TargetFolder::MakeFolder(std::string_view name) {
  return OpenPath(root_, PartsOf(name)).IsOpen() ? "" : Reason("make the folder");
}

std::string TargetFolder::Write(std::string_view name, std::span<const std::uint8_t> contents,
                                std::optional<std::int64_t> mtime) {
  const std::vector<std::string> parts = PartsOf(name);
  if (parts.empty()) return "it has no name";
  const FileHandle folder = OpenPath(root_, std::span(parts).first(parts.size() - 1));
  if (!folder.IsOpen()) return Reason("open its folder");
  const std::string passing = ".coilpack-" + std::to_string(::getpid());
  const FileHandle file(folder, passing, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
  if (!file.IsOpen()) return Reason("write the file");
  std::string problem;
  if (!file.WriteAll(std::as_bytes(contents))) problem = Reason("write the file");
  if (mtime) SetTime(file, *mtime);
  const int place = folder.Descriptor();
  if (problem.empty() && ::renameat(place, passing.c_str(), place, parts.back().c_str()) != 0)
    problem = Reason("put the file in its place");
  if (!problem.empty()) ::unlinkat(place, passing.c_str(), 0);
  return problem;
}

}  // namespace coilrun
