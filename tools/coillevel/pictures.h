#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace coilrun {

/// The program folder that a level file lies in: FOLDER in FOLDER/lvl/FILE.
std::filesystem::path ProgramFolderOf(const std::filesystem::path& levelFile);

/// The pictures that a level may name: those in its program folder, loose or packed in gfx.snr.
class Pictures {
 public:
  explicit Pictures(const std::filesystem::path& levelFile);

  /// False when the level does not lie in a program folder; any picture may exist then.
  bool Known() const { return known_; }
  /// True when a picture or a folder of pictures may exist below the gfx folder.
  bool Has(const std::string& name) const;
  /// True when a file may lie in this folder of the program folder ("lvl", "music"), whatever its
  /// letter case.
  bool HasFile(const std::string& folder, const std::string& name) const;

 private:
  std::filesystem::path folder_;
  bool known_ = false;
  std::set<std::string> names_;  ///< in lower case, with backslashes
};

}  // namespace coilrun
