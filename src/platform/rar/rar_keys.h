#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/rar/rar_entry.h"

namespace coilrun {

struct Rar5Keys {
  Digest256 cipher{};
  Digest256 sums{};
  RarCheckValue check{};
};

struct Rar4Keys {
  AesBlock cipher{};
  AesBlock iv{};
};

inline constexpr const char* kCryptoFails = "the encryption library of this system fails";

/// Keys, or why there are none.
template <typename Keys>
struct RarKeyResult {
  std::optional<Keys> keys;
  std::string problem;
};

/// Derives keys from a password (UTF-8) and remembers them by salt: by design each costs tens of
/// milliseconds, and archives use few salts. An archive that asks for an absurd amount of such work
/// gets no key.
class RarKeyRing {
 public:
  static constexpr int kMaxExponent = 20;

  /// A few seconds of work, counted in rounds of generation 5.
  static constexpr std::int64_t kUsualWork = std::int64_t{1} << 22;

  explicit RarKeyRing(std::string password, std::int64_t work = kUsualWork)
      : password_(std::move(password)), workLeft_(work) {}

  bool HasPassword() const { return !password_.empty(); }
  /// How much work may still be spent on new keys.
  void LimitWork(std::int64_t work) { workLeft_ = work; }
  /// Nothing for an exponent above `kMaxExponent`, when the archive's share of work is used up, or
  /// when libcrypto fails.
  RarKeyResult<Rar5Keys> Keys5(const RarSalt& salt, int exponent);
  RarKeyResult<Rar4Keys> Keys4(const std::optional<Rar4Salt>& salt);

 private:
  template <typename Known, typename Derive>
  auto KnownOrMade(Known& known, const typename Known::key_type& which, std::int64_t work,
                   const Derive& derive) -> RarKeyResult<typename Known::mapped_type>;

  std::string password_;
  std::map<std::pair<RarSalt, int>, Rar5Keys> keys5_;
  std::map<std::optional<Rar4Salt>, Rar4Keys> keys4_;
  std::int64_t workLeft_;
};

/// These and the following return nothing when libcrypto fails.
std::optional<Rar5Keys> DeriveRar5Keys(const std::string& password, const RarSalt& salt,
                                       int exponent);
std::optional<Rar4Keys> DeriveRar4Keys(const std::string& password,
                                       const std::optional<Rar4Salt>& salt);

/// The first four bytes of the check value's SHA-256, which archives store after it.
std::optional<std::array<std::uint8_t, 4>> CheckValueSum(const RarCheckValue& check);
/// What an archive with keyed checksums stores in place of a CRC.
std::optional<std::uint32_t> TweakedCrc(std::uint32_t crc, const Rar5Keys& keys);

}  // namespace coilrun
