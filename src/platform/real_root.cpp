#include "platform/real_root.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <map>
#include <unordered_map>
#include <unordered_set>

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

/// A name on disk as game text; nothing for names that game text cannot express.
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

/// The entry with that name: an exact match, otherwise the first that differs only in case.
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

/// The name of a file until it is whole: even a name of the greatest length needs one.
fs::path UnfinishedName(const fs::path& place) {
  constexpr std::size_t kLongest = 240;
  return place.parent_path() / (place.filename().native().substr(0, kLongest) + ".unfinished");
}

std::error_code LastError() {
  return {errno, std::generic_category()};
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

std::optional<fs::path> RealRoot::MakeFolders(const GamePath& path, std::error_code& error) const {
  fs::create_directories(folder_, error);
  if (error) return std::nullopt;
  fs::path place = folder_;
  for (const std::string& name : path) {
    place = FindIn(place, name).value_or(place / ToUtf8(name));
    if (!IsThere(place)) fs::create_directory(place, error);
    if (!error && !Holds(place)) error = std::make_error_code(std::errc::operation_not_permitted);
    if (error) return std::nullopt;
  }
  if (!IsFolder(place)) error = std::make_error_code(std::errc::not_a_directory);
  if (error) return std::nullopt;
  return place;
}

bool RealRoot::MakeFolder(const GamePath& path) const {
  std::error_code error;
  return MakeFolders(path, error).has_value();
}

std::error_code RealRoot::Write(const GamePath& path,
                                std::span<const std::uint8_t> contents) const {
  if (path.empty()) return std::make_error_code(std::errc::is_a_directory);
  std::error_code error;
  const auto folder = MakeFolders(GamePath(path.begin(), path.end() - 1), error);
  if (!folder) return error;
  const fs::path place = FindIn(*folder, path.back()).value_or(*folder / ToUtf8(path.back()));
  if (IsThere(place) && !(Holds(place) && IsFile(place)))
    return std::make_error_code(std::errc::operation_not_permitted);
  // A new file replaces the old one: never half a file, nor a write through a link to elsewhere.
  const fs::path unfinished = UnfinishedName(place);
  unlink(unfinished.c_str());
  FileHandle file(unfinished, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
  if (!file.IsOpen()) return LastError();
  const bool written = file.WriteAll(std::as_bytes(contents)) && file.Close() &&
                       rename(unfinished.c_str(), place.c_str()) == 0;
  if (written) return {};
  error = LastError();
  unlink(unfinished.c_str());
  return error;
}

/// Deletes files in one root, and remembers the names in the folders that it has seen.
class RealRoot::Deletion {
 public:
  explicit Deletion(const RealRoot& root) : root_(root) {}

  bool Delete(const GamePath& path) {
    if (path.empty()) return false;
    fs::path folder = root_.folder_;
    for (auto part = path.begin(); part != path.end() - 1; ++part) {
      const auto found = NamesOf(folder).Find(*part);
      if (!found) return false;
      folder /= *found;
    }
    const FolderNames& names = NamesOf(folder);
    const auto found = names.Find(path.back());
    const fs::path place = folder / found.value_or(ToUtf8(path.back()));
    const bool deleted = found && IsFile(place) && root_.Holds(place) && unlink(place.c_str()) == 0;
    // Left behind by a kill in the middle of a write.
    const fs::path unfinished = UnfinishedName(place);
    const bool cleared = names.Has(unfinished.filename()) && unlink(unfinished.c_str()) == 0;
    return deleted || cleared;
  }

 private:
  class FolderNames {
   public:
    explicit FolderNames(const std::vector<fs::path>& names) {
      for (const fs::path& name : names) {
        names_.insert(name.native());
        const auto text = GameName(name);
        if (text) byFolded_.emplace(FoldCase(*text), name.native());
      }
    }
    bool Has(const std::string& name) const { return names_.contains(name); }
    /// Finds a name the way `FindIn` does.
    std::optional<std::string> Find(const std::string& gameName) const {
      std::string same = ToUtf8(gameName);
      if (Has(same)) return same;
      const auto found = byFolded_.find(FoldCase(gameName));
      if (found == byFolded_.end()) return std::nullopt;
      return found->second;
    }

   private:
    std::unordered_set<std::string> names_;
    std::unordered_map<std::string, std::string> byFolded_;
  };

  const FolderNames& NamesOf(const fs::path& folder) {
    const auto known = folders_.find(folder);
    if (known != folders_.end()) return known->second;
    const bool inside = root_.Holds(folder);
    const auto names = inside ? NamesIn(folder) : std::vector<fs::path>{};
    return folders_.emplace(folder, FolderNames(names)).first->second;
  }

  const RealRoot& root_;
  std::map<fs::path, FolderNames> folders_;
};

std::vector<bool> RealRoot::Delete(std::span<const GamePath> paths) const {
  Deletion deletion(*this);
  std::vector<bool> deleted;
  deleted.reserve(paths.size());
  for (const GamePath& path : paths) deleted.push_back(deletion.Delete(path));
  return deleted;
}

}  // namespace coilrun
