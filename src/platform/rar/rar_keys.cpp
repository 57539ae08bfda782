#include "platform/rar/rar_keys.h"

#include <memory>

#include <openssl/evp.h>

#include "platform/rar/checksums.h"
#include "ports/bytes.h"
#include "ports/unicode.h"

namespace coilrun {
namespace {

constexpr std::uint32_t kRounds4 = 0x40000;

/// What a generation 4 key costs, in rounds of generation 5.
constexpr std::int64_t kWorkOfKey4 = std::int64_t{1} << 14;

constexpr const char* kTooMuchWork = "the archive asks for too much work to check its password";

std::optional<Digest256> Stretch(const std::string& password, const RarSalt& salt, int rounds) {
  Digest256 key{};
  if (PKCS5_PBKDF2_HMAC(password.data(), static_cast<int>(password.size()), salt.data(),
                        static_cast<int>(salt.size()), rounds, EVP_sha256(),
                        static_cast<int>(key.size()), key.data()) != 1)
    return std::nullopt;
  return key;
}

/// Little-endian UTF-16. Broken sequences give a password that fits no archive.
Bytes Utf16Bytes(std::string_view utf8) {
  Bytes result;
  for (const char16_t unit : Utf16FromUtf8(utf8)) {
    result.push_back(static_cast<std::uint8_t>(unit));
    result.push_back(static_cast<std::uint8_t>(unit >> 8));
  }
  return result;
}

using Sha1Digest = std::array<std::uint8_t, 20>;

/// An incremental SHA-1. A failure of the library shows at the end.
class Sha1 {
 public:
  Sha1() : ok_(context_ && EVP_DigestInit_ex(context_.get(), EVP_sha1(), nullptr) == 1) {}

  void Add(std::span<const std::uint8_t> bytes) {
    ok_ = ok_ && EVP_DigestUpdate(context_.get(), bytes.data(), bytes.size()) == 1;
  }
  /// The sum of what was added so far; more may follow.
  std::optional<Sha1Digest> Sum() const {
    const Context copy = NewContext();
    Sha1Digest digest{};
    if (!ok_ || !copy || EVP_MD_CTX_copy_ex(copy.get(), context_.get()) != 1 ||
        EVP_DigestFinal_ex(copy.get(), digest.data(), nullptr) != 1)
      return std::nullopt;
    return digest;
  }

 private:
  using Context = std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)>;
  static Context NewContext() { return {EVP_MD_CTX_new(), &EVP_MD_CTX_free}; }

  Context context_ = NewContext();
  bool ok_;
};

}  // namespace

std::optional<Rar5Keys> DeriveRar5Keys(const std::string& password, const RarSalt& salt,
                                       int exponent) {
  const int rounds = 1 << exponent;
  const auto cipher = Stretch(password, salt, rounds);
  const auto sums = Stretch(password, salt, rounds + 16);
  const auto check = Stretch(password, salt, rounds + 32);
  if (!cipher || !sums || !check) return std::nullopt;
  Rar5Keys keys{*cipher, *sums, {}};
  for (std::size_t i = 0; i < check->size(); ++i) keys.check[i % keys.check.size()] ^= (*check)[i];
  return keys;
}

std::optional<Rar4Keys> DeriveRar4Keys(const std::string& password,
                                       const std::optional<Rar4Salt>& salt) {
  Bytes seed = Utf16Bytes(password);
  if (salt) seed.insert(seed.end(), salt->begin(), salt->end());

  Rar4Keys keys;
  Sha1 running;
  for (std::uint32_t round = 0; round < kRounds4; ++round) {
    const std::array<std::uint8_t, 3> count = {static_cast<std::uint8_t>(round),
                                               static_cast<std::uint8_t>(round >> 8),
                                               static_cast<std::uint8_t>(round >> 16)};
    running.Add(seed);
    running.Add(count);
    if (round % (kRounds4 / keys.iv.size()) != 0) continue;
    const auto sum = running.Sum();
    if (!sum) return std::nullopt;
    keys.iv[round / (kRounds4 / keys.iv.size())] = sum->back();
  }
  const auto sum = running.Sum();
  if (!sum) return std::nullopt;
  for (std::size_t i = 0; i < keys.cipher.size(); ++i) keys.cipher[i] = (*sum)[i ^ 3];
  return keys;
}

template <typename Known, typename Derive>
auto RarKeyRing::KnownOrMade(Known& known, const typename Known::key_type& which, std::int64_t work,
                             const Derive& derive) -> RarKeyResult<typename Known::mapped_type> {
  const auto found = known.find(which);
  if (found != known.end()) return {found->second, {}};
  workLeft_ -= work;
  if (workLeft_ < 0) return {std::nullopt, kTooMuchWork};
  const auto made = derive();
  if (!made) return {std::nullopt, kCryptoFails};
  known.emplace(which, *made);
  return {made, {}};
}

RarKeyResult<Rar5Keys> RarKeyRing::Keys5(const RarSalt& salt, int exponent) {
  if (exponent > kMaxExponent) return {std::nullopt, kTooMuchWork};
  return KnownOrMade(keys5_, {salt, exponent}, std::int64_t{1} << exponent,
                     [&] { return DeriveRar5Keys(password_, salt, exponent); });
}

RarKeyResult<Rar4Keys> RarKeyRing::Keys4(const std::optional<Rar4Salt>& salt) {
  return KnownOrMade(keys4_, salt, kWorkOfKey4, [&] { return DeriveRar4Keys(password_, salt); });
}

std::optional<std::array<std::uint8_t, 4>> CheckValueSum(const RarCheckValue& check) {
  const auto digest = Sha256(check);
  if (!digest) return std::nullopt;
  return std::array{(*digest)[0], (*digest)[1], (*digest)[2], (*digest)[3]};
}

std::optional<std::uint32_t> TweakedCrc(std::uint32_t crc, const Rar5Keys& keys) {
  const std::array<std::uint8_t, 4> plain = {
      static_cast<std::uint8_t>(crc), static_cast<std::uint8_t>(crc >> 8),
      static_cast<std::uint8_t>(crc >> 16), static_cast<std::uint8_t>(crc >> 24)};
  const auto digest = HmacSha256(keys.sums, plain);
  if (!digest) return std::nullopt;
  std::uint32_t folded = 0;
  for (std::size_t i = 0; i < digest->size(); ++i)
    folded ^= static_cast<std::uint32_t>((*digest)[i]) << i % 4 * 8;
  return folded;
}

}  // namespace coilrun
