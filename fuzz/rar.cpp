#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>

#include "platform/rar/entry_name.h"
#include "platform/rar/rar4_container.h"
#include "platform/rar/rar5_container.h"
#include "platform/rar/rar_reader.h"
#include "support/rar_headers.h"

namespace coilrun {
namespace {

/// The keys of the committed archives, of which each costs as much as all else that an input asks
/// for. Inputs may make no more of them, but for the cheapest: no other code is reached by that.
RarKeyRing MakeKeys() {
  constexpr std::int64_t kCheap = 256;
  RarKeyRing keys("sn80463");
  for (const auto& entry : std::filesystem::directory_iterator(COILRUN_CORPUS_DIR "/rar")) {
    std::ifstream file(entry.path(), std::ios::binary);
    const Bytes bytes(std::istreambuf_iterator<char>(file), {});
    RarReader reader(bytes, std::move(keys));
    for (std::size_t i = 0; i < reader.Entries().size(); ++i) reader.Read(i);
    keys = reader.Keys();
  }
  keys.LimitWork(kCheap);
  return keys;
}

bool KeepsItsPromises(const Bytes& bytes) {
  static const RarKeyRing keys = MakeKeys();
  constexpr std::uint64_t kSmall = 1 << 20;
  RarReader reader(bytes, keys);
  for (std::size_t i = 0; i < reader.Entries().size(); ++i) {
    const RarEntry& entry = reader.Entries()[i];
    if (entry.size > kSmall) continue;
    const RarContents contents = reader.Read(i);
    if (!contents.Ok()) continue;
    if (!NameProblem(entry.name).empty()) return false;
    if (contents.bytes.size() != (entry.folder ? 0 : entry.size)) return false;
    const bool plainSum = entry.packed.crc && !entry.packed.Encrypted() && !entry.folder;
    if (plainSum && Crc32(contents.bytes) != *entry.packed.crc) return false;
  }
  return true;
}

/// Reads any bytes as an archive, as they are and with the header checksums put right. False when
/// the reader gives what it should not.
bool SurvivesAsArchive(std::span<const std::uint8_t> input) {
  const Bytes bytes(input.begin(), input.end());
  Bytes repaired = bytes;
  if (IsRar5(bytes)) RepairHeaders5(repaired);
  if (IsRar4(bytes)) RepairHeaders4(repaired);
  return KeepsItsPromises(bytes) && (repaired == bytes || KeepsItsPromises(repaired));
}

}  // namespace
}  // namespace coilrun

/// Any bytes as an archive.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (!coilrun::SurvivesAsArchive({data, size})) std::abort();
  return 0;
}
