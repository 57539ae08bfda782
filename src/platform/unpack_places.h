#pragma once

#include <filesystem>
#include <optional>

#include "platform/disk_files.h"
#include "platform/folder_claim.h"
#include "platform/folders.h"

namespace coilrun {

/// Where this run unpacks. A folder that another running game unpacks into is left to that game:
/// this run's files then go to a folder of their own, below the per-user folder or else the
/// temporary files.
class UnpackPlaces {
 public:
  explicit UnpackPlaces(const Folders& folders);

  /// The files in the program folder and in what covers it; must not be used after this object
  /// ends.
  DiskFiles MakeFiles() const;

 private:
  bool MakeOwnBelow(const std::filesystem::path& parent);

  std::filesystem::path programFolder_;
  FolderClaim program_;
  FolderClaim user_;
  /// Nothing when the program folder is the only place.
  std::optional<std::filesystem::path> unpacked_;
  std::optional<OwnFolder> own_;
};

}  // namespace coilrun
