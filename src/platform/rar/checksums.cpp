#include "platform/rar/checksums.h"

#include <blake2.h>
#include <openssl/evp.h>
#include <openssl/hmac.h>
#include <zlib.h>

namespace coilrun {

std::uint32_t Crc32(std::span<const std::uint8_t> bytes) {
  return static_cast<std::uint32_t>(crc32_z(0, bytes.data(), bytes.size()));
}

std::optional<Digest256> Sha256(std::span<const std::uint8_t> bytes) {
  Digest256 digest{};
  if (EVP_Digest(bytes.data(), bytes.size(), digest.data(), nullptr, EVP_sha256(), nullptr) != 1)
    return std::nullopt;
  return digest;
}

std::optional<Digest256> HmacSha256(std::span<const std::uint8_t> key,
                                    std::span<const std::uint8_t> bytes) {
  Digest256 digest{};
  if (HMAC(EVP_sha256(), key.data(), static_cast<int>(key.size()), bytes.data(), bytes.size(),
           digest.data(), nullptr) == nullptr)
    return std::nullopt;
  return digest;
}

std::optional<Digest256> Blake2sp(std::span<const std::uint8_t> bytes) {
  Digest256 digest{};
  if (blake2sp(digest.data(), bytes.data(), nullptr, digest.size(), bytes.size(), 0) != 0)
    return std::nullopt;
  return digest;
}

}  // namespace coilrun
