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

/// The header of a block, in the clear and proven by its checksum.
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
inline constexpr const char* kTooManyKeys =
    "the archive asks for too much work to check its password";

template <std::size_t kCount>
std::array<std::uint8_t, kCount> TakeArray(ByteReader& reader) {
  std::array<std::uint8_t, kCount> result{};
  const auto taken = reader.Take(kCount);
  std::copy(taken.begin(), taken.end(), result.begin());
  return result;
}

}  // namespace coilrun
