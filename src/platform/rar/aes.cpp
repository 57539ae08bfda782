#include "platform/rar/aes.h"

#include <limits>
#include <memory>

#include <openssl/evp.h>

namespace coilrun {
namespace {

std::optional<Bytes> Run(std::span<const std::uint8_t> key, const AesBlock& iv,
                         std::span<const std::uint8_t> bytes, bool encrypt) {
  constexpr std::size_t kMost = std::numeric_limits<int>::max();
  const std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context(
      EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
  const EVP_CIPHER* cipher = key.size() == 32 ? EVP_aes_256_cbc() : EVP_aes_128_cbc();
  Bytes result(bytes.size());
  int length = 0;
  const bool done = context && bytes.size() <= kMost &&
                    EVP_CipherInit_ex(context.get(), cipher, nullptr, key.data(), iv.data(),
                                      encrypt ? 1 : 0) == 1 &&
                    EVP_CIPHER_CTX_set_padding(context.get(), 0) == 1 &&
                    EVP_CipherUpdate(context.get(), result.data(), &length, bytes.data(),
                                     static_cast<int>(bytes.size())) == 1;
  if (!done || static_cast<std::size_t>(length) != bytes.size()) return std::nullopt;
  return result;
}

}  // namespace

std::optional<Bytes> AesDecrypt(std::span<const std::uint8_t> key, const AesBlock& iv,
                                std::span<const std::uint8_t> bytes) {
  return Run(key, iv, bytes.first(bytes.size() / kAesBlock * kAesBlock), false);
}

std::optional<Bytes> AesEncrypt(std::span<const std::uint8_t> key, const AesBlock& iv,
                                Bytes bytes) {
  bytes.resize(RoundedToBlocks(bytes.size()));
  return Run(key, iv, bytes, true);
}

}  // namespace coilrun
