#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ports/bytes.h"

namespace coilrun {

/// How the game writes the program folder in its paths: ".\gfx\pause.bmp", ".\lvl\lvl1.dat".
inline constexpr std::string_view kProgramFolder = ".";

/// The path of a thing in the program folder: InProgramFolder("\\lvl\\", "lvl1.dat").
inline std::string InProgramFolder(std::string_view path, std::string_view name = {}) {
  return std::string{kProgramFolder}.append(path).append(name);
}

/// The game's files. Paths are Windows-1252 text with backslashes in any letter case, beginning
/// with `kProgramFolder` (a full name that `FullName` gave is accepted too). Reading looks into the
/// per-user root first, then into the program folder; writing goes to the program folder, or to the
/// per-user root when the program folder cannot be written or another running game holds it. A path
/// that leads outside its root does not exist: it is never read, written or deleted.
class Files {
 public:
  virtual ~Files() = default;

  /// True for a file or a folder.
  virtual bool Exists(const std::string& path) const = 0;
  /// The whole file; nothing when it is missing, a folder, unreadable, or larger than 256 MiB.
  virtual std::optional<Bytes> Read(const std::string& path) const = 0;
  /// File names (no folders) of `folder` that end in `suffix` (any letter case), sorted by name
  /// without regard to case, from both roots; nothing when the folder does not exist.
  virtual std::optional<std::vector<std::string>> List(const std::string& folder,
                                                       std::string_view suffix) const = 0;
  /// True for a file or a folder that no other running game may remove.
  virtual bool IsLasting(const std::string& path) const = 0;
  /// Writes the whole file, making the folders that it needs: the file is there whole or not at
  /// all. False when that is not possible or not allowed.
  virtual bool Write(const std::string& path, std::span<const std::uint8_t> contents) = 0;
  virtual bool MakeFolder(const std::string& path) = 0;
  /// Deletes files, never folders; returns how many were there and are gone.
  virtual std::size_t DeleteAll(std::span<const std::string> paths) = 0;
  bool Delete(const std::string& path) { return DeleteAll({&path, 1}) == 1; }
  /// Number and name of the error that made the last attempt to write the file fail; "" when it was
  /// written or nobody tried.
  virtual std::string WriteProblem(const std::string& path) const = 0;
  /// The full name, on this machine, under which `Write` puts this path.
  virtual std::string FullName(const std::string& path) const = 0;
  /// The same path beginning with `kProgramFolder`, with backslashes and in lower case; "" when it
  /// leads outside.
  virtual std::string ShortName(const std::string& path) const = 0;
};

}  // namespace coilrun
