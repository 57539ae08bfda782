#pragma once

#include "platform/disk_files.h"
#include "platform/folders.h"
#include "platform/ini_settings.h"
#include "platform/rar/rar_archive.h"

namespace coilrun {

/// What both platforms keep on the disk.
struct Storage {
  Storage(const Folders& folders, const IniSettings::Report& report)
      : files(folders.program, folders.unpacked),
        archive(files),
        settings(folders.settingsFile, folders.program / "defaults.ini", report) {}

  DiskFiles files;
  RarArchive archive;
  IniSettings settings;
};

}  // namespace coilrun
