#include "platform/rar/checksums.h"

#include <array>

#include <openssl/evp.h>
#include <openssl/hmac.h>

namespace coilrun {
namespace {

constexpr std::array<std::uint32_t, 256> CrcTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
    std::uint32_t rest = byte;
    for (int bit = 0; bit < 8; ++bit) rest = (rest & 1) != 0 ? rest >> 1 ^ 0xEDB88320 : rest >> 1;
    table[byte] = rest;
  }
  return table;
}

constexpr std::array<std::uint32_t, 256> kCrcTable = CrcTable();

}  // namespace

std::uint32_t Crc32(std::span<const std::uint8_t> bytes) {
  std::uint32_t rest = 0xFFFFFFFF;
  for (const std::uint8_t byte : bytes) rest = kCrcTable[(rest ^ byte) & 0xFF] ^ rest >> 8;
  return ~rest;
}

Digest256 Sha256(std::span<const std::uint8_t> bytes) {
  Digest256 digest{};
  EVP_Digest(bytes.data(), bytes.size(), digest.data(), nullptr, EVP_sha256(), nullptr);
  return digest;
}

Digest256 HmacSha256(std::span<const std::uint8_t> key, std::span<const std::uint8_t> bytes) {
  Digest256 digest{};
  HMAC(EVP_sha256(), key.data(), static_cast<int>(key.size()), bytes.data(), bytes.size(),
       digest.data(), nullptr);
  return digest;
}

}  // namespace coilrun
