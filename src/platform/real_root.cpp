#include "platform/real_root.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

#include "platform/file_handle.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

namespace fs = std::filesystem;

fs::path Canonical(const fs::path& folder) {
  std::error_code error;
  const fs::path absolute = fs::absolute(folder, error);
  const fs::path canonical = fs::weakly_canonical(absolute, error);
  const fs::path& place = error ? absolute : canonical;
  return place.has_filename() || !place.has_relative_path() ? place : place.parent_path();
}

std::string WithoutEndSeparator(std::string text) {
  if (!text.empty() && text.back() == '/') text.pop_back();
  return text;
}

bool IsThere(const fs::path& place) {
  std::error_code error;
  return fs::exists(fs::symlink_status(place, error));
}

bool IsFolder(const fs::path& place) {
  std::error_code error;
  return fs::is_directory(place, error);
}

bool IsFile(const fs::path& place) {
  std::error_code error;
  return fs::is_regular_file(place, error);
}

/// The game text of a name on disk; nothing for names that no game text can say.
std::optional<std::string> GameName(const fs::path& name) {
  const std::string text = FromUtf8(name.native());
  if (ToUtf8(text) != name.native() || text.find('\\') != std::string::npos) return std::nullopt;
  return text;
}

/// All names in a folder, sorted, so that the answer does not depend on the file system.
std::vector<fs::path> NamesIn(const fs::path& folder) {
  std::vector<fs::path> names;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
    names.push_back(at->path().filename());
  std::sort(names.begin(), names.end());
  return names;
}

/// The entry of that name: the very same one, else the first that differs in case only.
std::optional<fs::path> FindIn(const fs::path& folder, const std::string& name) {
  const fs::path same = folder / ToUtf8(name);
  if (IsThere(same)) return same;
  const std::string folded = FoldCase(name);
  for (const fs::path& candidate : NamesIn(folder)) {
    const auto text = GameName(candidate);
    if (text && FoldCase(*text) == folded) return folder / candidate;
  }
  return std::nullopt;
}

/// What a file is called until it is whole.
fs::path UnfinishedName(const fs::path& place) {
  return place.native() + ".unfinished";
}

}  // namespace

bool CanWriteInto(const fs::path& folder) {
  const fs::path probe = folder / (".coilrun-probe-" + std::to_string(getpid()));
  const FileHandle file(probe, O_WRONLY | O_CREAT | O_NOFOLLOW);
  if (!file.IsOpen()) return false;
  unlink(probe.c_str());
  return true;
}

RealRoot::RealRoot(const fs::path& folder)
    : folder_(Canonical(folder)), text_(WithoutEndSeparator(FromUtf8(folder_.native()))) {}

bool RealRoot::Holds(const fs::path& place) const {
  std::error_code error;
  const fs::path real = fs::canonical(place, error);
  if (error) return false;
  const auto split = std::mismatch(folder_.begin(), folder_.end(), real.begin(), real.end());
  return split.first == folder_.end() && (IsFile(real) || IsFolder(real));
}

std::optional<fs::path> RealRoot::Find(const GamePath& path) const {
  fs::path place = folder_;
  for (const std::string& name : path) {
    const auto next = FindIn(place, name);
    if (!next) return std::nullopt;
    place = *next;
  }
  if (!Holds(place)) return std::nullopt;
  return place;
}

std::optional<Bytes> RealRoot::Read(const GamePath& path, std::uintmax_t limit) const {
  const auto place = Find(path);
  if (!place || !IsFile(*place)) return std::nullopt;
  const FileHandle file(*place, O_RDONLY | O_NONBLOCK);
  Bytes contents;
  if (!file.IsOpen() || !file.ReadAll(contents, limit)) return std::nullopt;
  return contents;
}

std::optional<std::vector<std::string>> RealRoot::List(const GamePath& path) const {
  const auto folder = Find(path);
  if (!folder || !IsFolder(*folder)) return std::nullopt;
  std::vector<std::string> names;
  for (const fs::path& name : NamesIn(*folder)) {
    const auto text = GameName(name);
    const fs::path place = *folder / name;
    if (text && Holds(place) && IsFile(place)) names.push_back(*text);
  }
  return names;
}

std::optional<fs::path> RealRoot::MakeFolders(const GamePath& path) const {
  std::error_code error;
  fs::create_directories(folder_, error);
  fs::path place = folder_;
  for (const std::string& name : path) {
    place = FindIn(place, name).value_or(place / ToUtf8(name));
    if (!IsThere(place)) fs::create_directory(place, error);
    if (!Holds(place)) return std::nullopt;
  }
  if (!IsFolder(place)) return std::nullopt;
  return place;
}

bool RealRoot::MakeFolder(const GamePath& path) const {
  return MakeFolders(path).has_value();
}

bool RealRoot::Write(const GamePath& path, std::span<const std::uint8_t> contents) const {
  if (path.empty()) return false;
  const auto folder = MakeFolders(GamePath(path.begin(), path.end() - 1));
  if (!folder) return false;
  const fs::path place = FindIn(*folder, path.back()).value_or(*folder / ToUtf8(path.back()));
  if (IsThere(place) && !(Holds(place) && IsFile(place))) return false;
  // A new file in place of the old one: never half a file, nor a write through a link elsewhere.
  const fs::path unfinished = UnfinishedName(place);
  unlink(unfinished.c_str());
  FileHandle file(unfinished, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
  if (!file.IsOpen()) return false;
  const bool written = file.WriteAll(std::as_bytes(contents)) && file.Close() &&
                       rename(unfinished.c_str(), place.c_str()) == 0;
  if (written) return true;
  const int reason = errno;
  unlink(unfinished.c_str());
  errno = reason;
  return false;
}

bool RealRoot::Delete(const GamePath& path) const {
  const auto place = Find(path);
  if (place) return IsFile(*place) && unlink(place->c_str()) == 0;
  // What a kill in the middle of a write has left.
  const auto folder = path.empty() ? std::nullopt : Find(GamePath(path.begin(), path.end() - 1));
  return folder && unlink(UnfinishedName(*folder / ToUtf8(path.back())).c_str()) == 0;
}

}  // namespace coilrun
