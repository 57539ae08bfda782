#pragma once

#include <cstdint>
#include <span>

#include "platform/rar/rar_entry.h"
#include "ports/bytes.h"

namespace coilrun {

inline constexpr std::size_t kAesBlock = 16;

constexpr std::uint64_t RoundedToBlocks(std::uint64_t size) {
  return (size + kAesBlock - 1) / kAesBlock * kAesBlock;
}

/// AES-CBC without padding; keys of 16 or 32 bytes. Only whole blocks are taken, a shorter rest is
/// dropped.
Bytes AesDecrypt(std::span<const std::uint8_t> key, const AesBlock& iv,
                 std::span<const std::uint8_t> bytes);
/// The way back; the last block is filled up with zeros.
Bytes AesEncrypt(std::span<const std::uint8_t> key, const AesBlock& iv, Bytes bytes);

}  // namespace coilrun
