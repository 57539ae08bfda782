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
constexpr mode_t kFileMode = 0666;

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

OpenFile OpenFolder(const OpenFile& parent, const std::string& name) {
  if (::mkdirat(parent.Number(), name.c_str(), kFolderMode) != 0 && errno != EEXIST)
    return OpenFile(-1);
  return OpenFile(
      ::openat(parent.Number(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

/// The folder that `parts` lead to, made as far as it is missing.
OpenFile OpenPath(const OpenFile& root, std::span<const std::string> parts) {
  OpenFile folder(::openat(root.Number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  for (const std::string& part : parts) {
    if (folder.Ok()) folder = OpenFolder(folder, part);
  }
  return folder;
}

bool WriteAll(const OpenFile& file, std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.Number(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return true;
}

void SetTime(const OpenFile& file, std::int64_t mtime) {
  const std::array<timespec, 2> times = {timespec{mtime, 0}, timespec{mtime, 0}};
  ::futimens(file.Number(), times.data());
}

OpenFile OpenRoot(const std::string& folder) {
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  return OpenFile(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

}  // namespace

OpenFile::OpenFile(OpenFile&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

OpenFile& OpenFile::operator=(OpenFile&& other) noexcept {
  std::swap(number_, other.number_);
  return *this;
}

OpenFile::~OpenFile() {
  if (number_ >= 0) ::close(number_);
}

TargetFolder::TargetFolder(const std::string& folder) : root_(OpenRoot(folder)) {}

std::string TargetFolder::MakeFolder(std::string_view name) {
  return OpenPath(root_, PartsOf(name)).Ok() ? "" : Reason("make the folder");
}

std::string TargetFolder::Write(std::string_view name, std::span<const std::uint8_t> contents,
                                std::optional<std::int64_t> mtime) {
  const std::vector<std::string> parts = PartsOf(name);
  if (parts.empty()) return "it has no name";
  const OpenFile folder = OpenPath(root_, std::span(parts).first(parts.size() - 1));
  if (!folder.Ok()) return Reason("open its folder");
  const std::string passing = ".coilpack-" + std::to_string(::getpid());
  const OpenFile file(::openat(folder.Number(), passing.c_str(),
                               O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kFileMode));
  if (!file.Ok()) return Reason("write the file");
  std::string problem;
  if (!WriteAll(file, contents)) problem = Reason("write the file");
  if (mtime) SetTime(file, *mtime);
  if (problem.empty() &&
      ::renameat(folder.Number(), passing.c_str(), folder.Number(), parts.back().c_str()) != 0)
    problem = Reason("put the file in its place");
  if (!problem.empty()) ::unlinkat(folder.Number(), passing.c_str(), 0);
  return problem;
}

}  // namespace coilrun
