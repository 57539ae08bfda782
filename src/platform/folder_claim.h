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

 private:
  FileHandle folder_;
};

/// A fresh folder below `parent`, claimed and removed with all that is in it at the end of its
/// scope. Those that killed games have left there are removed at the start.
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

}  // namespace coilrun
