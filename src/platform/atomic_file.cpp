#include "platform/atomic_file.h"

#include <cerrno>
#include <chrono>
#include <span>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_handle.h"

namespace coilrun {
namespace {

namespace fs = std::filesystem;

std::error_code LastError() {
  return {errno, std::generic_category()};
}

/// Whether the open file is still the one with that name.
bool IsSame(const FileHandle& file, const fs::path& name) {
  struct stat open {};
  struct stat named {};
  return fstat(file.Descriptor(), &open) == 0 && lstat(name.c_str(), &named) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

bool IsRegular(const FileHandle& file) {
  struct stat status {};
  return fstat(file.Descriptor(), &status) == 0 && S_ISREG(status.st_mode);
}

/// Waits for other running games, which are quick, but not for one that is suspended.
bool Lock(const FileHandle& file) {
  constexpr auto kPatience = std::chrono::milliseconds(500);
  constexpr auto kPause = std::chrono::milliseconds(5);
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (flock(file.Descriptor(), LOCK_EX | LOCK_NB) != 0) {
    if (errno == EINTR) continue;
    // Where the disk knows no locks, writing settings unguarded is better than losing them.
    if (errno != EWOULDBLOCK) return true;
    if (std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(kPause);
  }
  return true;
}

/// The temporary file, which is ours alone while it is open: two running games must not mix theirs.
/// A file that a crash left behind is reused.
FileHandle OpenTemporary(const fs::path& temporary) {
  while (true) {
    // Otherwise a pipe with that name would wait for a reader.
    FileHandle file(temporary, O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK);
    if (!file.IsOpen()) return {};
    if (!IsRegular(file)) {
      errno = EEXIST;
      return {};
    }
    if (!Lock(file)) return {};
    if (IsSame(file, temporary)) return file;
  }
}

/// Gives the new file the permissions of the old one and, as far as that is allowed, its owner.
void TakeOver(const FileHandle& file, const fs::path& old) {
  struct stat status {};
  if (stat(old.c_str(), &status) != 0) return;
  [[maybe_unused]] const int given = fchown(file.Descriptor(), status.st_uid, status.st_gid);
  fchmod(file.Descriptor(), status.st_mode & ACCESSPERMS);
}

/// Makes a new name last. Not all file systems can do that, and nothing helps where they cannot.
void SyncFolder(const fs::path& folder) {
  const FileHandle handle(folder, O_RDONLY | O_DIRECTORY);
  if (handle.IsOpen()) fsync(handle.Descriptor());
}

bool WriteWhole(const FileHandle& file, std::string_view contents) {
  return ftruncate(file.Descriptor(), 0) == 0 &&
         file.WriteAll(std::as_bytes(std::span(contents))) && fsync(file.Descriptor()) == 0;
}

}  // namespace

std::error_code ReplaceFile(const fs::path& file,
                            const std::function<std::optional<std::string>()>& contents) {
  std::error_code error;
  // A link to the file stays a link.
  const fs::path canonical = fs::weakly_canonical(file, error);
  const fs::path target = error ? file : canonical;
  fs::create_directories(target.parent_path(), error);
  if (error) return error;
  const fs::path temporary = target.native() + ".new";
  const FileHandle handle = OpenTemporary(temporary);
  if (!handle.IsOpen()) return LastError();
  TakeOver(handle, target);
  const auto text = contents();
  errno = ECANCELED;
  if (!text || !WriteWhole(handle, *text) || rename(temporary.c_str(), target.c_str()) != 0) {
    const std::error_code problem = LastError();
    unlink(temporary.c_str());
    return problem;
  }
  SyncFolder(target.parent_path());
  return {};
}

}  // namespace coilrun
