#include "platform/atomic_file.h"

#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_handle.h"

namespace coilrun {
namespace {

namespace fs = std::filesystem;

/// Whether the open file is still the one of that name.
bool IsSame(const FileHandle& file, const fs::path& name) {
  struct stat open {};
  struct stat named {};
  return fstat(file.Descriptor(), &open) == 0 && lstat(name.c_str(), &named) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

/// The temporary file, ours alone while it is open: two running games must not mix theirs. One left
/// behind by a crash is taken over.
FileHandle OpenTemporary(const fs::path& temporary) {
  while (true) {
    FileHandle file(temporary, O_WRONLY | O_CREAT | O_NOFOLLOW);
    if (!file.IsOpen() || flock(file.Descriptor(), LOCK_EX) != 0) return {};
    if (IsSame(file, temporary)) return file;
  }
}

/// Makes a new name last. Not all file systems can; there is nothing to do about it.
void SyncFolder(const fs::path& folder) {
  const FileHandle handle(folder, O_RDONLY | O_DIRECTORY);
  if (handle.IsOpen()) fsync(handle.Descriptor());
}

}  // namespace

bool ReplaceFile(const fs::path& file, std::string_view contents) {
  std::error_code error;
  // A link to the file stays a link.
  const fs::path canonical = fs::weakly_canonical(file, error);
  const fs::path target = error ? file : canonical;
  fs::create_directories(target.parent_path(), error);
  const fs::path temporary = target.native() + ".new";
  const FileHandle handle = OpenTemporary(temporary);
  if (!handle.IsOpen()) return false;
  const bool whole = ftruncate(handle.Descriptor(), 0) == 0 &&
                     handle.WriteAll(std::as_bytes(std::span(contents))) &&
                     fsync(handle.Descriptor()) == 0;
  if (!whole || rename(temporary.c_str(), target.c_str()) != 0) {
    unlink(temporary.c_str());
    return false;
  }
  SyncFolder(target.parent_path());
  return true;
}

}  // namespace coilrun
