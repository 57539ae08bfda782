#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "platform/rar/rar_entry.h"
#include "platform/rar/rar_keys.h"
#include "ports/byte_reader.h"
#include "ports/bytes.h"

namespace coilrun {

/// The header of a block, decrypted and verified by its checksum.
struct RarHeader {
  Bytes bytes;
  std::size_t end = 0;  ///< position in the archive right behind the header
};

/// A header, or why there is none.
struct RarHeaderResult {
  std::optional<RarHeader> header;
  std::string fault;
};

inline constexpr const char* kCutOff = "the archive is cut off";
inline constexpr const char* kDamaged = "a header is damaged";
inline constexpr const char* kDamagedOrWrongPassword = "wrong password or a damaged header";
/// Notes where in the archive the packed bytes of an entry lie; only `left` bytes remain there.
inline void PlaceContents(RarEntry& entry, std::size_t at, std::uint64_t size, std::size_t left) {
  entry.packed.offset = at;
  entry.packed.size = static_cast<std::size_t>(std::min<std::uint64_t>(size, left));
  if (size > left) entry.problem = "cut off";
}

template <std::size_t kCount>
std::array<std::uint8_t, kCount> TakeArray(ByteReader& reader) {
  std::array<std::uint8_t, kCount> result{};
  const auto taken = reader.Take(kCount);
  std::copy(taken.begin(), taken.end(), result.begin());
  return result;
}

}  // namespace coilrun
