#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/rar/rar_entry.h"
#include "ports/bytes.h"

namespace coilrun {

inline constexpr std::size_t kAesBlock = 16;

template <typename Size>
constexpr Size RoundedToBlocks(Size size) {
  return (size + kAesBlock - 1) / kAesBlock * kAesBlock;
}

/// AES-CBC without padding, for keys of 16 or 32 bytes. Only whole blocks are decrypted; a shorter
/// rest is dropped. Nothing when libcrypto fails or there are more bytes than it takes at once
/// (2 GiB).
std::optional<Bytes> AesDecrypt(std::span<const std::uint8_t> key, const AesBlock& iv,
                                std::span<const std::uint8_t> bytes);
/// The reverse; the last block is filled up with zeros.
std::optional<Bytes> AesEncrypt(std::span<const std::uint8_t> key, const AesBlock& iv, Bytes bytes);

}  // namespace coilrun
