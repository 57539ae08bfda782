#include "platform/folder_claim.h"

#include <cstdlib>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace coilrun {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kOwnPrefix = "run-";

bool IsStillThere(const FileHandle& folder, const fs::path& name) {
  struct stat open {};
  struct stat named {};
  return fstat(folder.Descriptor(), &open) == 0 && stat(name.c_str(), &named) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

void RemoveLeftFolders(const fs::path& parent) {
  std::error_code error;
  for (fs::directory_iterator at(parent, error), end; !error && at != end; at.increment(error)) {
    if (!at->path().filename().native().starts_with(kOwnPrefix)) continue;
    if (FolderClaim(at->path()).IsHeld()) fs::remove_all(at->path(), error);
  }
}

}  // namespace

FolderClaim::FolderClaim(const fs::path& folder) : folder_(folder, O_RDONLY | O_DIRECTORY) {
  if (!folder_.IsOpen()) return;
  const bool ours = flock(folder_.Descriptor(), LOCK_EX | LOCK_NB) == 0;
  if (!ours || !IsStillThere(folder_, folder)) folder_ = {};
}

OwnFolder::OwnFolder(const fs::path& parent) {
  constexpr int kAttempts = 100;
  std::error_code error;
  fs::create_directories(parent, error);
  RemoveLeftFolders(parent);
  // Another start may take a folder for one that was left, in the moment before it is claimed.
  for (int attempt = 0; attempt < kAttempts && !claim_.IsHeld(); ++attempt) {
    path_ = parent / (std::string(kOwnPrefix) + "XXXXXX");
    std::string name = path_.string();
    if (mkdtemp(name.data()) == nullptr) break;
    path_ = name;
    claim_ = FolderClaim(path_);
  }
  if (!claim_.IsHeld()) path_.clear();
}

OwnFolder::~OwnFolder() {
  std::error_code error;
  if (!path_.empty()) fs::remove_all(path_, error);
}

}  // namespace coilrun
