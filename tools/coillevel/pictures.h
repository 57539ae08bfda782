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

 private:
  bool known_ = false;
  std::set<std::string> names_;  ///< in lower case, with backslashes
};

}  // namespace coilrun
