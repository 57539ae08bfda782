#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/file_handle.h"

namespace coilrun {

/// The folder that an archive is unpacked into. Nothing outside it is ever touched: links on the
/// way are refused, and a link in place of a file is replaced, not followed.
class TargetFolder {
 public:
  /// Makes the folder, and those above it, if missing.
  explicit TargetFolder(const std::string& folder);

  bool Ok() const { return root_.IsOpen(); }
  /// `name` is relative, with slashes or backslashes, and must be harmless. Both return what went
  /// wrong.
  std::string MakeFolder(std::string_view name);
  std::string Write(std::string_view name, std::span<const std::uint8_t> contents,
                    std::optional<std::int64_t> mtime);

 private:
  FileHandle root_;
};

}  // namespace coilrun
