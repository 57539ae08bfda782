#include "platform/rar/rar_writer.h"

#include <algorithm>
#include <array>
#include <optional>

#include "platform/rar/aes.h"
#include "platform/rar/byte_writer.h"
#include "platform/rar/checksums.h"
#include "platform/rar/rar5_format.h"
#include "platform/rar/rar_keys.h"

namespace coilrun {
namespace {

constexpr int kExponent = 15;
constexpr std::uint64_t kFileMode = 0100644;
constexpr std::uint64_t kFolderMode = 0040755;

/// What the whole archive is encrypted with: one salt, so that a reader derives keys only once.
struct Cipher {
  RarSalt salt{};
  Rar5Keys keys;
  std::array<std::uint8_t, 4> checkSum{};
};

Bytes BytesOf(const std::string& text) {
  return {text.begin(), text.end()};
}

template <std::size_t kCount>
std::array<std::uint8_t, kCount> Beginning(const Digest256& digest) {
  std::array<std::uint8_t, kCount> result{};
  std::copy_n(digest.begin(), kCount, result.begin());
  return result;
}

std::optional<Digest256> Fingerprint(const RarSource& source) {
  const auto name = Sha256(BytesOf(source.name));
  const auto contents = Sha256(source.contents);
  if (!name || !contents) return std::nullopt;
  ByteWriter text;
  text.Add(*name);
  text.Add(*contents);
  return Sha256(text.Written());
}

/// Salt and initialisation vectors are made from what is packed: different for different contents,
/// and the same again for the same contents.
std::optional<Cipher> MakeCipher(std::span<const RarSource> sources, const std::string& password) {
  ByteWriter all;
  for (const RarSource& source : sources) {
    const auto fingerprint = Fingerprint(source);
    if (!fingerprint) return std::nullopt;
    all.Add(*fingerprint);
  }
  const auto digest = HmacSha256(BytesOf(password), all.Written());
  if (!digest) return std::nullopt;
  const auto salt = Beginning<16>(*digest);
  const auto keys = DeriveRar5Keys(password, salt, kExponent);
  const auto checkSum = keys ? CheckValueSum(keys->check) : std::nullopt;
  if (!checkSum) return std::nullopt;
  return Cipher{salt, *keys, *checkSum};
}

Bytes CipherRecord(const Cipher& cipher, const AesBlock& iv) {
  ByteWriter record;
  record.Vint(rar5::kCipher);
  record.Vint(0);
  record.Vint(rar5::kHasCheck | rar5::kTweakedSums);
  record.U8(kExponent);
  record.Add(cipher.salt);
  record.Add(iv);
  record.Add(cipher.keys.check);
  record.Add(cipher.checkSum);
  ByteWriter sized;
  sized.Vint(record.Written().size());
  sized.Add(record.Written());
  return sized.Written();
}

/// The header always states its data's size, even 0: some readers give up without it.
Bytes FileFields(const RarSource& source, const Bytes& extra, std::size_t dataSize,
                 std::uint32_t crc) {
  ByteWriter fields;
  fields.Vint(rar5::kFile);
  fields.Vint(rar5::kHasData | (extra.empty() ? 0 : rar5::kHasExtra));
  if (!extra.empty()) fields.Vint(extra.size());
  fields.Vint(dataSize);
  fields.Vint(rar5::kHasTime | (source.folder ? rar5::kFolder : rar5::kHasCrc));
  fields.Vint(source.contents.size());
  fields.Vint(source.folder ? kFolderMode : kFileMode);
  fields.U32(source.mtime);
  if (!source.folder) fields.U32(crc);
  fields.Vint(0);
  fields.Vint(rar5::kHostUnix);
  fields.Vint(source.name.size());
  fields.Add(BytesOf(source.name));
  fields.Add(extra);
  return fields.Written();
}

void AddPlain(ByteWriter& archive, const RarSource& source) {
  const std::size_t size = source.contents.size();
  rar5::AddHeader(archive, FileFields(source, {}, size, Crc32(source.contents)));
  archive.Add(source.contents);
}

bool AddEncrypted(ByteWriter& archive, const RarSource& source, const Cipher& cipher) {
  const auto fingerprint = Fingerprint(source);
  const auto digest = fingerprint ? HmacSha256(cipher.keys.sums, *fingerprint) : std::nullopt;
  const auto crc = TweakedCrc(Crc32(source.contents), cipher.keys);
  if (!digest || !crc) return false;
  const auto iv = Beginning<16>(*digest);
  const auto data = AesEncrypt(cipher.keys.cipher, iv, source.contents);
  if (!data) return false;
  rar5::AddHeader(archive, FileFields(source, CipherRecord(cipher, iv), data->size(), *crc));
  archive.Add(*data);
  return true;
}

}  // namespace

std::optional<Bytes> WriteRar(std::span<const RarSource> sources, const std::string& password) {
  std::optional<Cipher> cipher;
  if (!password.empty()) {
    cipher = MakeCipher(sources, password);
    if (!cipher) return std::nullopt;
  }
  ByteWriter archive;
  archive.Add(rar5::kSignature);
  rar5::AddHeader(archive, {rar5::kMain, 0, 0});
  for (const RarSource& source : sources) {
    if (!cipher || source.contents.empty()) {
      AddPlain(archive, source);
    } else if (!AddEncrypted(archive, source, *cipher)) {
      return std::nullopt;
    }
  }
  rar5::AddHeader(archive, {rar5::kEnd, 0, 0});
  return archive.Written();
}

}  // namespace coilrun
