#pragma once

#include <cstdint>
#include <span>

#include "platform/rar/checksums.h"
#include "ports/byte_reader.h"

namespace coilrun {

inline std::uint64_t Vint(ByteReader& reader) {
  std::uint64_t value = 0;
  for (unsigned shift = 0; shift < 63; shift += 7) {
    const std::uint8_t byte = reader.U8();
    value |= std::uint64_t{byte & 0x7FU} << shift;
    if (byte < 0x80) break;
  }
  return value;
}

inline void PutNumber(Bytes& bytes, std::size_t at, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i) bytes[at++] = static_cast<std::uint8_t>(value >> 8 * i);
}

/// Corrects the checksums of plain headers, so that changed headers are read at all.
inline void RepairHeaders5(Bytes& bytes) {
  for (std::size_t at = 8; at + 4 < bytes.size();) {
    ByteReader reader(bytes);
    reader.Seek(at + 4);
    const std::uint64_t size = Vint(reader);
    const std::size_t body = reader.Position();
    if (!reader.Ok() || size > bytes.size() - body) return;
    const std::size_t next = body + static_cast<std::size_t>(size);
    PutNumber(bytes, at, Crc32(std::span(bytes).subspan(at + 4, next - at - 4)), 4);
    Vint(reader);
    const std::uint64_t flags = Vint(reader);
    if ((flags & 1) != 0) Vint(reader);
    const std::uint64_t data = (flags & 2) != 0 ? Vint(reader) : 0;
    if (!reader.Ok() || data > bytes.size() - next) return;
    at = next + static_cast<std::size_t>(data);
  }
}

inline void RepairHeaders4(Bytes& bytes) {
  for (std::size_t at = 7; at + 11 < bytes.size();) {
    ByteReader reader(bytes);
    reader.Seek(at + 2);
    const std::uint8_t type = reader.U8();
    const bool withData = (reader.U16() & 0x8000) != 0 || type == 0x74 || type == 0x7A;
    const std::size_t size = reader.U16();
    const std::uint64_t data = withData ? reader.U32() : 0;
    if (size < 7 || size > bytes.size() - at) return;
    PutNumber(bytes, at, Crc32(std::span(bytes).subspan(at + 2, size - 2)), 2);
    if (data > bytes.size() - at - size) return;
    at += size + static_cast<std::size_t>(data);
  }
}

}  // namespace coilrun
