#pragma once

#include <filesystem>
#include <optional>

namespace coilrun {

/// The folders that a run uses on this machine.
struct Folders {
  std::filesystem::path program;
  std::filesystem::path settingsFile;
  std::filesystem::path unpacked;
};

/// What the process knows about where it runs, kept apart so that tests can replace it. Empty paths
/// stand for variables that are not set.
struct Surroundings {
  std::filesystem::path executableFolder;
  std::filesystem::path home;
  std::filesystem::path configHome;
  std::filesystem::path dataHome;
};

Surroundings FindSurroundings();

/// The folder of the executable if it holds "lvl", otherwise the share folder beside its bin
/// folder.
std::filesystem::path DefaultProgramFolder(const Surroundings& surroundings);
/// Everything that belongs to one player in one folder.
Folders FoldersIn(const std::filesystem::path& program, const std::filesystem::path& user);
/// The folders where the desktop's rules put a player's files.
Folders DefaultFolders(const std::filesystem::path& program, const Surroundings& surroundings);

/// An empty folder of our own that is removed, with everything in it, at the end of its scope.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// Empty when no folder could be made.
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace coilrun
