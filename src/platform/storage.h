#pragma once

#include <filesystem>
#include <optional>
#include <system_error>

#include "platform/disk_files.h"
#include "platform/folder_claim.h"
#include "platform/folders.h"
#include "platform/ini_settings.h"
#include "platform/rar/rar_archive.h"

namespace coilrun {

/// Where this run unpacks. A folder that another running game unpacks into is left to it: then the
/// files go to a folder of this run's own among the player's.
class UnpackPlaces {
 public:
  explicit UnpackPlaces(const Folders& folders)
      : program_(folders.program), user_(Made(folders.unpacked)), unpacked_(folders.unpacked) {
    std::error_code error;
    const bool same = std::filesystem::equivalent(folders.program, folders.unpacked, error);
    if (same ? program_.IsHeld() : user_.IsHeld()) return;
    unpacked_ = own_.emplace(folders.unpacked).Path();
  }

  DiskFiles FilesIn(const std::filesystem::path& program) const {
    const auto never = [](const std::filesystem::path& /*folder*/) { return false; };
    return {program, unpacked_, program_.IsHeld() ? DiskFiles::Probe{CanWriteInto} : never};
  }

 private:
  static const std::filesystem::path& Made(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    return folder;
  }

  FolderClaim program_;
  FolderClaim user_;
  std::filesystem::path unpacked_;
  std::optional<OwnFolder> own_;
};

/// What both platforms keep on the disk.
struct Storage {
  Storage(const Folders& folders, const IniSettings::Report& report)
      : places(folders),
        files(places.FilesIn(folders.program)),
        archive(files),
        settings(folders.settingsFile, folders.program / "defaults.ini", report) {}

  UnpackPlaces places;
  DiskFiles files;
  RarArchive archive;
  IniSettings settings;
};

}  // namespace coilrun
