#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <utility>

#include "ports/bytes.h"

namespace coilrun {

/// An open file of the operating system, closed at the end of its scope.
class FileHandle {
 public:
  FileHandle() = default;
  /// Takes over a file that is already open.
  explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
  /// Opens with the flags of open(2), and never passes the file on to other programs.
  FileHandle(const std::filesystem::path& file, int flags);
  /// The same for a file in an open folder.
  FileHandle(const FileHandle& folder, const std::filesystem::path& name, int flags);
  ~FileHandle() { Close(); }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  FileHandle(FileHandle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileHandle& operator=(FileHandle&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }

  bool IsOpen() const { return descriptor_ >= 0; }
  int Descriptor() const { return descriptor_; }
  /// Reads up to the end of the file; false on an error or when there are more than `limit` bytes.
  bool ReadAll(Bytes& contents, std::uint64_t limit) const;
  bool WriteAll(std::span<const std::byte> contents) const;
  /// False when the system reports a late write error.
  bool Close();

 private:
  int descriptor_ = -1;
};

}  // namespace coilrun
