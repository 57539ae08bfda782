#pragma once

#include "platform/disk_files.h"
#include "platform/folders.h"
#include "platform/ini_settings.h"
#include "platform/rar/rar_archive.h"
#include "platform/unpack_places.h"

namespace coilrun {

/// What both platforms keep on the disk.
struct Storage {
  Storage(const Folders& folders, const IniSettings::Report& report)
      : places(folders),
        files(places.MakeFiles()),
        archive(files),
        settings(folders.settingsFile, folders.program / "defaults.ini", report) {}

  UnpackPlaces places;
  DiskFiles files;
  RarArchive archive;
  IniSettings settings;
};

}  // namespace coilrun
