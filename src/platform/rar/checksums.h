#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/rar/rar_entry.h"

namespace coilrun {

/// CRC32 as archives and pictures use it (polynomial 0xEDB88320).
std::uint32_t Crc32(std::span<const std::uint8_t> bytes);
/// This and the following return nothing when the library fails.
std::optional<Digest256> Sha256(std::span<const std::uint8_t> bytes);
std::optional<Digest256> HmacSha256(std::span<const std::uint8_t> key,
                                    std::span<const std::uint8_t> bytes);
/// BLAKE2sp (eight parallel leaves of BLAKE2s), the other checksum of generation 5.
std::optional<Digest256> Blake2sp(std::span<const std::uint8_t> bytes);

}  // namespace coilrun
