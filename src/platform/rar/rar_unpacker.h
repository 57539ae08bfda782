#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include <archive.h>

#include "platform/rar/rar_repack.h"
#include "ports/bytes.h"

namespace coilrun {

/// Decompresses one item, or a run of items that share a dictionary, with libarchive. Fast when the
/// items are requested in order.
class RarUnpacker {
 public:
  RarUnpacker(int generation, const std::vector<CompressedItem>& items);

  /// The contents of an item, exactly as long as declared; nothing when the data is damaged.
  std::optional<Bytes> Unpack(std::size_t index);

 private:
  using Handle = std::unique_ptr<archive, decltype(&archive_read_free)>;

  bool Open();
  std::optional<Bytes> Next();
  std::optional<Bytes> ReadThrough(std::size_t index);

  Bytes archive_;
  std::vector<std::uint64_t> sizes_;
  Handle handle_{nullptr, &archive_read_free};
  std::size_t next_ = 0;
  std::optional<std::size_t> damaged_;
};

}  // namespace coilrun
