#pragma once

#include <cstdint>
#include <span>

#include "ports/bytes.h"

namespace coilrun {

/// Builds little-endian records.
class ByteWriter {
 public:
  void U8(std::uint64_t value) { Number(value, 1); }
  void U16(std::uint64_t value) { Number(value, 2); }
  void U32(std::uint64_t value) { Number(value, 4); }
  /// Seven bits per byte, lowest first, with the top bit set while more follow.
  void Vint(std::uint64_t value) {
    for (; value >= 0x80; value >>= 7) U8((value & 0x7F) | 0x80);
    U8(value);
  }
  void Add(std::span<const std::uint8_t> more);

  const Bytes& Written() const { return bytes_; }

 private:
  void Number(std::uint64_t value, int size) {
    for (int i = 0; i < size; ++i) bytes_.push_back(static_cast<std::uint8_t>(value >> 8 * i));
  }

  Bytes bytes_;
};

}  // namespace coilrun
