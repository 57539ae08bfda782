#pragma once

#include <filesystem>
#include <optional>

#include "platform/disk_files.h"
#include "platform/folder_claim.h"
#include "platform/folders.h"

namespace coilrun {

/// Where this run unpacks. A folder that another running game unpacks into is left to it: then the
/// files go to a folder of this run's own, among the player's or else among temporary files.
class UnpackPlaces {
 public:
  explicit UnpackPlaces(const Folders& folders);

  /// The program folder and what covers it; not to be used after the object's end.
  DiskFiles MakeFiles() const;

 private:
  bool MakeOwnBelow(const std::filesystem::path& parent);

  std::filesystem::path programFolder_;
  FolderClaim program_;
  FolderClaim user_;
  /// Nothing when there is no place but the program folder.
  std::optional<std::filesystem::path> unpacked_;
  std::optional<OwnFolder> own_;
};

}  // namespace coilrun
