#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <system_error>
#include <vector>

#include "platform/game_path.h"
#include "ports/bytes.h"

namespace coilrun {

/// Whether a file can be made in the folder; found out by making one, because on a read-only mount
/// the permissions alone do not tell.
bool CanWriteInto(const std::filesystem::path& folder);

/// One real folder and what lies in it, found without regard to case. Links that lead out of it,
/// and anything that is neither file nor folder, do not exist here.
class RealRoot {
 public:
  explicit RealRoot(const std::filesystem::path& folder);

  /// The folder as game text, without a separator at the end.
  const std::string& Text() const { return text_; }
  /// The real place of an existing file or folder.
  std::optional<std::filesystem::path> Find(const GamePath& path) const;
  std::optional<Bytes> Read(const GamePath& path, std::uintmax_t limit) const;
  /// Names of the files in a folder, in game text; nothing when there is no such folder.
  std::optional<std::vector<std::string>> List(const GamePath& path) const;
  /// Writes the whole file or, on an error, nothing.
  std::error_code Write(const GamePath& path, std::span<const std::uint8_t> contents) const;
  bool MakeFolder(const GamePath& path) const;
  /// Deletes files, and what a kill while writing them has left; returns for each whether anything
  /// was deleted. Reads every folder once, however many files it holds.
  std::vector<bool> Delete(std::span<const GamePath> paths) const;

 private:
  class Deletion;

  bool Holds(const std::filesystem::path& place) const;
  std::optional<std::filesystem::path> MakeFolders(const GamePath& path,
                                                   std::error_code& error) const;

  std::filesystem::path folder_;
  std::string text_;
};

}  // namespace coilrun
