#include <cstdint>
#include <cstdlib>
#include <span>

#include "platform/rar/entry_name.h"
#include "platform/rar/rar4_container.h"
#include "platform/rar/rar5_container.h"
#include "platform/rar/rar_reader.h"
#include "support/rar_headers.h"

namespace coilrun {
namespace {

bool KeepsItsPromises(const Bytes& bytes) {
  constexpr std::uint64_t kSmall = 1 << 20;
  RarReader reader(bytes, "sn80463");
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
  Bytes bytes(input.begin(), input.end());
  if (!KeepsItsPromises(bytes)) return false;
  if (IsRar5(bytes)) RepairHeaders5(bytes);
  if (IsRar4(bytes)) RepairHeaders4(bytes);
  return KeepsItsPromises(bytes);
}

}  // namespace
}  // namespace coilrun

/// Any bytes as an archive.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (!coilrun::SurvivesAsArchive({data, size})) std::abort();
  return 0;
}
