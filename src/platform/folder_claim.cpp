#include "platform/folder_claim.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace coilrun {
namespace {

namespace fs = std::filesystem;

/// Whatever begins with this may be removed, so nobody else must choose such a name by chance.
constexpr std::string_view kOwnPrefix = "coilrun-run-";

bool IsStillThere(const FileHandle& folder, const fs::path& name) {
  struct stat open {};
  struct stat named {};
  return fstat(folder.Descriptor(), &open) == 0 && stat(name.c_str(), &named) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

}  // namespace

FolderClaim::FolderClaim(const fs::path& folder) : folder_(folder, O_RDONLY | O_DIRECTORY) {
  if (!folder_.IsOpen()) return;
  const bool locked = flock(folder_.Descriptor(), LOCK_EX | LOCK_NB) == 0;
  taken_ = locked ? !IsStillThere(folder_, folder) : errno == EWOULDBLOCK;
  if (!locked || taken_) folder_ = {};
}

OwnFolder::OwnFolder(const fs::path& parent) {
  constexpr int kAttempts = 100;
  // In the moment before a folder is claimed, another start may take it for one that was left.
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    std::string name = (parent / kOwnPrefix).native() + "XXXXXX";
    if (mkdtemp(name.data()) == nullptr) return;
    claim_ = FolderClaim(name);
    std::error_code error;
    if (!claim_.IsHeld() && (claim_.IsTaken() || !fs::exists(name, error))) continue;
    path_ = name;
    return;
  }
}

OwnFolder::~OwnFolder() {
  std::error_code error;
  if (!path_.empty()) fs::remove_all(path_, error);
}

void RemoveLeftFolders(const fs::path& parent) {
  std::error_code error;
  for (fs::directory_iterator at(parent, error), end; !error && at != end; at.increment(error)) {
    if (!at->path().filename().native().starts_with(kOwnPrefix)) continue;
    const FolderClaim left(at->path());
    std::error_code ignored;
    if (left.IsHeld()) fs::remove_all(at->path(), ignored);
  }
}

}  // namespace coilrun
