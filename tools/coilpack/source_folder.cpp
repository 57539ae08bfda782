#include "source_folder.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <limits>

#include <fcntl.h>

#include "platform/file_handle.h"
#include "platform/rar/entry_name.h"
#include "platform/rar/rar_entry.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

namespace fs = std::filesystem;

std::uint32_t ModifiedSeconds(const fs::path& path) {
  const auto time = std::chrono::file_clock::to_sys(fs::last_write_time(path));
  const auto seconds = std::chrono::floor<std::chrono::seconds>(time).time_since_epoch().count();
  constexpr std::int64_t kLatest = std::numeric_limits<std::uint32_t>::max();
  return static_cast<std::uint32_t>(std::clamp<std::int64_t>(seconds, 0, kLatest));
}

std::string KindProblem(const fs::directory_entry& entry, const std::string& name) {
  if (entry.is_symlink()) return "is a link";
  if (!entry.is_directory() && !entry.is_regular_file()) return "is neither a file nor a folder";
  if (name.find('\\') != std::string::npos) return "has a backslash in its name";
  return NameProblem(name);
}

/// Fills in one source; returns what keeps it from being packed, if anything.
std::string Describe(const fs::directory_entry& entry, RarSource& source) {
  std::string problem = KindProblem(entry, source.name);
  if (!problem.empty()) return problem;
  source.folder = entry.is_directory();
  source.mtime = ModifiedSeconds(entry.path());
  if (source.folder) return {};
  auto contents = ReadWholeFile(entry.path().string());
  if (!contents) return "cannot be read or is larger than 256 MiB";
  source.contents = std::move(*contents);
  return {};
}

SourceFolder Collect(const fs::path& folder, const fs::path& archive) {
  SourceFolder result;
  std::uint64_t total = 0;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    std::error_code ignored;
    if (fs::equivalent(entry.path(), archive, ignored)) continue;
    RarSource source;
    source.name = entry.path().lexically_relative(folder).generic_string();
    const std::string problem = Describe(entry, source);
    if (!problem.empty()) return {{}, entry.path().string() + ": " + problem};
    total += source.contents.size();
    if (total > kMaxArchiveSize) return {{}, folder.string() + ": holds more than 1 GiB"};
    result.sources.push_back(std::move(source));
  }
  std::sort(result.sources.begin(), result.sources.end(),
            [](const RarSource& a, const RarSource& b) { return a.name < b.name; });
  return result;
}

}  // namespace

SourceFolder ReadSourceFolder(const std::string& folder, const std::string& archive) {
  try {
    return Collect(folder, archive);
  } catch (const fs::filesystem_error& error) {
    return {{}, folder + ": " + error.code().message()};
  }
}

std::optional<Bytes> ReadWholeFile(const std::string& file) {
  std::error_code fault;
  if (!fs::is_regular_file(file, fault)) return std::nullopt;
  Bytes contents;
  if (!FileHandle(file, O_RDONLY).ReadAll(contents, kMaxEntrySize)) return std::nullopt;
  return contents;
}

}  // namespace coilrun
