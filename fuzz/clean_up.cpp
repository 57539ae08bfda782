#include <cstdint>
#include <cstdlib>
#include <string>

#include "content/archives.h"
#include "folder.h"
#include "platform/disk_files.h"
#include "support/content_stage.h"

namespace coilrun {
namespace {

constexpr const char* kKept[] = {"outside/precious.bmp", "game/gfx.snr", "game/coilrun",
                                 "game/lvl/lvl1.dat", "player/coilrun.ini"};
constexpr const char* kList = "game/cleanup-gfx.snr.snc";

/// Cleans up by a list of any text. False when more goes than what was unpacked, or the list stays.
bool KeepsItsPromises(const FuzzFolder& folder, const std::string& list) {
  for (const char* const name : kKept)
    if (!folder.Holds(name)) folder.Put(name, "x");
  for (const char* const name : {"game/gfx/a.bmp", "player/data/gfx/a.bmp"})
    if (!folder.Holds(name)) folder.Put(name, "x");
  folder.Put(kList, list);

  ContentStage stage;
  DiskFiles files(folder / "game", folder / "player/data",
                  [](const std::filesystem::path& /*folder*/) { return true; });
  CleanUpFiles({stage.state, files, stage.archive, stage.pump, stage.host});
  for (const char* const name : kKept)
    if (!folder.Holds(name)) return false;
  return !folder.Holds(kList);
}

}  // namespace
}  // namespace coilrun

/// Any bytes as a clean-up list, in which "@" stands for the full name of the folder around all.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const coilrun::FuzzFolder folder;
  std::string list;
  for (std::size_t i = 0; i < size; ++i) {
    if (data[i] == '@') {
      list += (folder / ".").parent_path().string();
    } else {
      list += static_cast<char>(data[i]);
    }
  }
  if (!coilrun::KeepsItsPromises(folder, list)) std::abort();
  return 0;
}
