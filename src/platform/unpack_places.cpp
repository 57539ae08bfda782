#include "platform/unpack_places.h"

#include <system_error>

namespace coilrun {
namespace {

namespace fs = std::filesystem;

/// Only a folder that exists can be claimed.
const fs::path& Made(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  return folder;
}

}  // namespace

UnpackPlaces::UnpackPlaces(const Folders& folders)
    : programFolder_(folders.program),
      program_(folders.program),
      user_(Made(folders.unpacked)),
      unpacked_(folders.unpacked) {
  RemoveLeftFolders(folders.unpacked);
  std::error_code error;
  // If both are one folder, its second claim fails because of the first, so the first one counts.
  const bool same = fs::equivalent(folders.program, folders.unpacked, error);
  const bool free = !(same ? program_ : user_).IsTaken();
  if (free && (!program_.IsTaken() || CanWriteInto(folders.unpacked))) return;
  if (MakeOwnBelow(folders.unpacked)) return;
  unpacked_.reset();
  const fs::path temporary = fs::temp_directory_path(error);
  if (error) return;
  RemoveLeftFolders(temporary);
  MakeOwnBelow(temporary);
}

bool UnpackPlaces::MakeOwnBelow(const fs::path& parent) {
  own_.emplace(parent);
  if (own_->Path().empty()) return false;
  unpacked_ = own_->Path();
  return true;
}

DiskFiles UnpackPlaces::MakeFiles() const {
  const auto program = program_.IsTaken() ? ProgramFolder::kTaken : ProgramFolder::kOurs;
  return {programFolder_, unpacked_, CanWriteInto, program};
}

}  // namespace coilrun
