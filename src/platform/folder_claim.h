#pragma once

#include <filesystem>

#include "platform/file_handle.h"

namespace coilrun {

/// A running game's claim to a folder. It ends with the process, however that ends.
class FolderClaim {
 public:
  FolderClaim() = default;
  /// Claims the folder if it exists and no other running game holds it.
  explicit FolderClaim(const std::filesystem::path& folder);

  bool IsHeld() const { return folder_.IsOpen(); }
  /// True when another running game holds the folder or has just removed it. False also for a
  /// folder that nobody can claim: a missing one, or one on a disk that knows no locks.
  bool IsTaken() const { return taken_; }

 private:
  FileHandle folder_;
  bool taken_ = false;
};

/// A fresh folder below `parent`, which is claimed, and removed with everything in it at the end of
/// its scope.
class OwnFolder {
 public:
  explicit OwnFolder(const std::filesystem::path& parent);
  ~OwnFolder();
  OwnFolder(const OwnFolder&) = delete;
  OwnFolder& operator=(const OwnFolder&) = delete;

  /// Empty when no folder could be made.
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
  FolderClaim claim_;
};

/// Removes the folders that killed games have left below `parent`.
void RemoveLeftFolders(const std::filesystem::path& parent);

}  // namespace coilrun
