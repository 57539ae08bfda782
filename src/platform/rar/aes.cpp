#include "platform/rar/aes.h"

#include <memory>

#include <openssl/evp.h>

namespace coilrun {
namespace {

Bytes Run(std::span<const std::uint8_t> key, const AesBlock& iv,
          std::span<const std::uint8_t> bytes, bool encrypt) {
  const std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context(
      EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
  const EVP_CIPHER* cipher = key.size() == 32 ? EVP_aes_256_cbc() : EVP_aes_128_cbc();
  EVP_CipherInit_ex(context.get(), cipher, nullptr, key.data(), iv.data(), encrypt ? 1 : 0);
  EVP_CIPHER_CTX_set_padding(context.get(), 0);
  Bytes result(bytes.size());
  int length = 0;
  EVP_CipherUpdate(context.get(), result.data(), &length, bytes.data(),
                   static_cast<int>(bytes.size()));
  return result;
}

}  // namespace

Bytes AesDecrypt(std::span<const std::uint8_t> key, const AesBlock& iv,
                 std::span<const std::uint8_t> bytes) {
  return Run(key, iv, bytes.first(bytes.size() / kAesBlock * kAesBlock), false);
}

Bytes AesEncrypt(std::span<const std::uint8_t> key, const AesBlock& iv, Bytes bytes) {
  bytes.resize(RoundedToBlocks(bytes.size()));
  return Run(key, iv, bytes, true);
}

}  // namespace coilrun
