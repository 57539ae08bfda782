#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "content/context.h"

namespace coilrun {

/// The password of all the game's archives except the model packs.
inline constexpr std::string_view kArchivePassword = "sn80463";

/// What became of an archive: how many of its entries were processed, and how many were not because
/// they are damaged or ask for a place where they must not go.
struct UnpackResult {
  bool opened = false;
  int processed = 0;
  int refused = 0;
};

/// True for a file or a folder.
bool FileExists(const Files& files, const std::string& path);

/// Tells whether an entry with this name may be unpacked; an empty filter allows all.
using EntryFilter = std::function<bool(std::string_view name)>;

/// Unpacks an archive (a game path) into `folder` (a game path that ends in "\") and notes its
/// files in the archive's clean-up list, which is on disk before the first of them. Files that
/// already exist are skipped unless this is a new installation. An empty password means none.
UnpackResult SnUnextractFile(const ContentContext& context, const std::string& archive,
                             const std::string& folder, std::string_view password,
                             const EntryFilter& allowed = {});

/// The part of leaving the game that concerns files: ends the main loop and, unless unpacked files
/// are to be kept, deletes every file that a clean-up list names, then the lists. Failures are
/// ignored. The caller has already given back screen and keyboard.
void CleanUpFiles(const ContentContext& context);

}  // namespace coilrun
