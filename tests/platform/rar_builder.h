#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/rar/rar_entry.h"
#include "support.h"

namespace coilrun {

/// What made and committed archives are locked with.
inline constexpr const char* kPassword = "sn80463";

// Committed archives of all kinds, with the same three entries: of the old and the new generation;
// locked not at all, their contents, or all.
inline constexpr const char* kArchives = COILRUN_SOURCE_DIR "/fuzz/corpus/rar";
inline const std::string kArchiveKinds[] = {"old_open", "old_contents", "old_headers",
                                            "new_open", "new_contents", "new_headers"};
inline Bytes CommittedArchive(const std::string& name) {
  return ToBytes(Contents(std::filesystem::path(kArchives) / (name + ".rar")));
}

/// One entry of an archive to be made. `packed` is set for compressed contents; `blake` takes the
/// place of the CRC.
struct MadeEntry {
  std::string name{};
  std::string contents{};
  std::optional<Bytes> packed{};
  bool folder = false;
  bool solid = false;
  bool link = false;
  std::optional<Digest256> blake{};
  std::optional<std::uint64_t> claimedSize{};
};

/// An archive of generation 5 as its program would have written it.
struct MadeArchive {
  std::vector<MadeEntry> entries{};
  bool locked = false;
  bool checkValue = true;

  Bytes Write() const;
};

}  // namespace coilrun
