#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/rar/rar_entry.h"
#include "support.h"

namespace coilrun {

/// The password of built and committed archives.
inline constexpr const char* kPassword = "sn80463";

// Committed archives of all kinds with the same three entries: of the old and the new generation;
// with nothing encrypted, the contents, or everything.
inline constexpr const char* kArchives = COILRUN_SOURCE_DIR "/fuzz/corpus/rar";
inline const std::string kArchiveKinds[] = {"old_open", "old_contents", "old_headers",
                                            "new_open", "new_contents", "new_headers"};
inline Bytes CommittedArchive(const std::string& name) {
  return ToBytes(Contents(std::filesystem::path(kArchives) / (name + ".rar")));
}

/// One entry of an archive to be built. `packed` is set for compressed contents; `blake` replaces
/// the CRC.
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

/// Builds an archive of generation 5 the way its own program would write it.
struct MadeArchive {
  std::vector<MadeEntry> entries{};
  bool locked = false;
  bool checkValue = true;

  Bytes Write() const;
};

}  // namespace coilrun
