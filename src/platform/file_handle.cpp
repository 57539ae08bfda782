#include "platform/file_handle.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace coilrun {
namespace {

constexpr std::size_t kChunk = 65536;
constexpr mode_t kPermissions = 0666;

}  // namespace

FileHandle::FileHandle(const std::filesystem::path& file, int flags)
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system call has no other form.
    : descriptor_(open(file.c_str(), flags | O_CLOEXEC, kPermissions)) {}

FileHandle::FileHandle(const FileHandle& folder, const std::filesystem::path& name, int flags)
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system call has no other form.
    : descriptor_(openat(folder.descriptor_, name.c_str(), flags | O_CLOEXEC, kPermissions)) {}

bool FileHandle::ReadAll(Bytes& contents, std::uint64_t limit) const {
  struct stat status {};
  if (fstat(descriptor_, &status) != 0 || std::cmp_greater(status.st_size, limit)) return false;
  contents.reserve(static_cast<std::size_t>(status.st_size) + kChunk);
  std::size_t size = 0;
  while (true) {
    contents.resize(size + kChunk);
    const ssize_t got = read(descriptor_, contents.data() + size, kChunk);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return false;
    size += static_cast<std::size_t>(got);
    if (size > limit) return false;
    if (got == 0) break;
  }
  contents.resize(size);
  return true;
}

bool FileHandle::WriteAll(std::span<const std::byte> contents) const {
  while (!contents.empty()) {
    const ssize_t put = write(descriptor_, contents.data(), contents.size());
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) return false;
    contents = contents.subspan(static_cast<std::size_t>(put));
  }
  return true;
}

bool FileHandle::Close() {
  const int descriptor = std::exchange(descriptor_, -1);
  return descriptor < 0 || close(descriptor) == 0;
}

}  // namespace coilrun
