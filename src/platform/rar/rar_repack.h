#pragma once

#include <cstdint>
#include <vector>

#include "ports/bytes.h"

namespace coilrun {

/// Compressed contents, decrypted.
struct CompressedItem {
  std::uint64_t size = 0;  ///< of the contents
  std::uint32_t crc = 0;   ///< of the contents; generation 4 only
  int method = 0;
  int version = 0;
  unsigned window = 0;
  Bytes data;
};

/// Plain archives around compressed contents, in the form that libarchive reads best: nothing but
/// bare file headers. In a generation 5 archive, items after the first use the dictionary of those
/// before them.
Bytes RepackRar4(const CompressedItem& item);
Bytes RepackRar5(const std::vector<CompressedItem>& items);

/// The size of generation 5 data up to the end of its last block; the cipher's padding follows.
std::size_t PackedBlocksSize(const Bytes& data);

}  // namespace coilrun
