#include "platform/rar/rar_keys.h"

#include <memory>

#include <openssl/evp.h>

#include "platform/rar/checksums.h"
#include "ports/bytes.h"

namespace coilrun {
namespace {

constexpr std::uint32_t kRounds4 = 0x40000;

/// What a key of generation 4 costs in rounds of generation 5.
constexpr std::int64_t kWorkOfKey4 = std::int64_t{1} << 14;

Digest256 Stretch(const std::string& password, const RarSalt& salt, int rounds) {
  Digest256 key{};
  PKCS5_PBKDF2_HMAC(password.data(), static_cast<int>(password.size()), salt.data(),
                    static_cast<int>(salt.size()), rounds, EVP_sha256(),
                    static_cast<int>(key.size()), key.data());
  return key;
}

void AppendUtf16(Bytes& bytes, std::uint32_t unit) {
  bytes.push_back(static_cast<std::uint8_t>(unit));
  bytes.push_back(static_cast<std::uint8_t>(unit >> 8));
}

/// Little-endian UTF-16. Broken sequences give a password that fits nothing, which is all they can.
Bytes Utf16Of(const std::string& utf8) {
  Bytes result;
  for (std::size_t at = 0; at < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[at++]);
    const int more = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    std::uint32_t code = more == 0 ? lead : lead & (0x3FU >> more);
    for (int i = 0; i < more && at < utf8.size(); ++i)
      code = code << 6 | (static_cast<unsigned char>(utf8[at++]) & 0x3FU);
    if (code >= 0x10000) AppendUtf16(result, 0xD7C0U + (code >> 10));
    AppendUtf16(result, code >= 0x10000 ? 0xDC00U + (code & 0x3FFU) : code);
  }
  return result;
}

using DigestContext = std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)>;
using Sha1Digest = std::array<std::uint8_t, 20>;

DigestContext NewDigestContext() {
  return {EVP_MD_CTX_new(), &EVP_MD_CTX_free};
}

Sha1Digest Finish(const DigestContext& context) {
  Sha1Digest digest{};
  EVP_DigestFinal_ex(context.get(), digest.data(), nullptr);
  return digest;
}

}  // namespace

Rar5Keys DeriveRar5Keys(const std::string& password, const RarSalt& salt, int exponent) {
  const int rounds = 1 << exponent;
  Rar5Keys keys;
  keys.cipher = Stretch(password, salt, rounds);
  keys.sums = Stretch(password, salt, rounds + 16);
  const Digest256 check = Stretch(password, salt, rounds + 32);
  for (std::size_t i = 0; i < check.size(); ++i) keys.check[i % keys.check.size()] ^= check[i];
  return keys;
}

Rar4Keys DeriveRar4Keys(const std::string& password, const std::optional<Rar4Salt>& salt) {
  Bytes seed = Utf16Of(password);
  if (salt) seed.insert(seed.end(), salt->begin(), salt->end());

  Rar4Keys keys;
  const DigestContext running = NewDigestContext();
  const DigestContext snapshot = NewDigestContext();
  EVP_DigestInit_ex(running.get(), EVP_sha1(), nullptr);
  for (std::uint32_t round = 0; round < kRounds4; ++round) {
    const std::array<std::uint8_t, 3> count = {static_cast<std::uint8_t>(round),
                                               static_cast<std::uint8_t>(round >> 8),
                                               static_cast<std::uint8_t>(round >> 16)};
    EVP_DigestUpdate(running.get(), seed.data(), seed.size());
    EVP_DigestUpdate(running.get(), count.data(), count.size());
    if (round % (kRounds4 / keys.iv.size()) == 0) {
      EVP_MD_CTX_copy_ex(snapshot.get(), running.get());
      keys.iv[round / (kRounds4 / keys.iv.size())] = Finish(snapshot)[19];
    }
  }
  const Sha1Digest digest = Finish(running);
  for (std::size_t i = 0; i < keys.cipher.size(); ++i) keys.cipher[i] = digest[i ^ 3];
  return keys;
}

std::optional<Rar5Keys> RarKeyRing::Keys5(const RarSalt& salt, int exponent) {
  if (exponent > kMaxExponent) return std::nullopt;
  const auto known = keys5_.find({salt, exponent});
  if (known != keys5_.end()) return known->second;
  workLeft_ -= std::int64_t{1} << exponent;
  if (workLeft_ < 0) return std::nullopt;
  return keys5_[{salt, exponent}] = DeriveRar5Keys(password_, salt, exponent);
}

std::optional<Rar4Keys> RarKeyRing::Keys4(const std::optional<Rar4Salt>& salt) {
  const auto known = keys4_.find(salt);
  if (known != keys4_.end()) return known->second;
  workLeft_ -= kWorkOfKey4;
  if (workLeft_ < 0) return std::nullopt;
  return keys4_[salt] = DeriveRar4Keys(password_, salt);
}

std::array<std::uint8_t, 4> CheckValueSum(const RarCheckValue& check) {
  const Digest256 digest = Sha256(check);
  return {digest[0], digest[1], digest[2], digest[3]};
}

std::uint32_t TweakedCrc(std::uint32_t crc, const Rar5Keys& keys) {
  const std::array<std::uint8_t, 4> plain = {
      static_cast<std::uint8_t>(crc), static_cast<std::uint8_t>(crc >> 8),
      static_cast<std::uint8_t>(crc >> 16), static_cast<std::uint8_t>(crc >> 24)};
  const Digest256 digest = HmacSha256(keys.sums, plain);
  std::uint32_t folded = 0;
  for (std::size_t i = 0; i < digest.size(); ++i)
    folded ^= static_cast<std::uint32_t>(digest[i]) << i % 4 * 8;
  return folded;
}

}  // namespace coilrun
