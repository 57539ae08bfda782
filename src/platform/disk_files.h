#pragma once

#include <map>
#include <optional>
#include <system_error>
#include <vector>

#include "platform/real_root.h"
#include "ports/files.h"

namespace coilrun {

/// Whether this run may write to the program folder, or another running game unpacks into it.
enum class ProgramFolder { kOurs, kTaken };

/// The game's files in two real folders: the program folder, and the per-user folder, which takes
/// what the program folder cannot.
class DiskFiles : public Files {
 public:
  /// `user` may be nothing or the same folder; it is made when something is first written to it.
  /// `probe` tells whether the program folder can be written.
  using Probe = bool (*)(const std::filesystem::path& folder);
  DiskFiles(const std::filesystem::path& program, const std::optional<std::filesystem::path>& user,
            Probe probe = CanWriteInto, ProgramFolder use = ProgramFolder::kOurs);

  bool Exists(const std::string& path) const override;
  std::optional<Bytes> Read(const std::string& path) const override;
  std::optional<std::vector<std::string>> List(const std::string& folder,
                                               std::string_view suffix) const override;
  bool Write(const std::string& path, std::span<const std::uint8_t> contents) override;
  bool MakeFolder(const std::string& path) override;
  std::size_t DeleteAll(std::span<const std::string> paths) override;
  std::string FullName(const std::string& path) const override;
  std::string ShortName(const std::string& path) const override;
  bool IsLasting(const std::string& path) const override;
  std::string WriteProblem(const std::string& path) const override;

 private:
  std::optional<GamePath> Parse(const std::string& path) const;
  std::vector<const RealRoot*> ReadOrder() const;
  std::vector<const RealRoot*> WriteOrder() const;

  RealRoot program_;
  std::optional<RealRoot> user_;
  bool programTaken_;
  bool programWritable_;
  /// By short name.
  std::map<std::string, std::error_code> writeProblems_;
};

}  // namespace coilrun
