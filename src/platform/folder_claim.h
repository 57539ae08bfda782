#pragma once

#include <filesystem>

#include "platform/file_handle.h"

namespace coilrun {

/// The claim of one running game to a folder. It goes with the process, however that ends.
class FolderClaim {
 public:
  FolderClaim() = default;
  /// Claims the folder when it is there and no other running game has it.
  explicit FolderClaim(const std::filesystem::path& folder);

  bool IsHeld() const { return folder_.IsOpen(); }
  /// Another running game has the folder, or has just removed it. False as well for a folder that
  /// nobody can claim: a missing one, or one on a disk that knows no locks.
  bool IsTaken() const { return taken_; }

 private:
  FileHandle folder_;
  bool taken_ = false;
};

/// A fresh folder below `parent`, claimed and removed with all that is in it at the end of its
/// scope.
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

/// Removes the folders of their own that killed games have left below `parent`.
void RemoveLeftFolders(const std::filesystem::path& parent);

}  // namespace coilrun
