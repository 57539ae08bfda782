#pragma once

#include <optional>
#include <string>

namespace coilrun {

/// Reads the game's data archives entry by entry, in archive order. One archive is open at a time.
class Archive {
 public:
  virtual ~Archive() = default;

  /// Opens an archive by its game path. False when it is missing or not an archive of a known kind.
  virtual bool Open(const std::string& path) = 0;
  virtual void SetPassword(const std::string& password) = 0;
  /// Name of the next entry as the archive stores it, with backslashes; nothing at the end or when
  /// the archive is damaged.
  virtual std::optional<std::string> ReadHeader() = 0;
  /// Writes the current entry to the game path `target` (a folder entry makes the folder), or
  /// skips it when there is no target. False when it is damaged, too large, encrypted with another
  /// password, or its target is not allowed.
  virtual bool ProcessFile(const std::optional<std::string>& target) = 0;
  virtual void Close() = 0;
};

}  // namespace coilrun
