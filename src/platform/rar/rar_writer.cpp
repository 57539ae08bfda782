#include "platform/rar/rar_writer.h"

#include <algorithm>
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

/// What the whole archive is encrypted with: one salt, so that a reader makes keys only once.
struct Cipher {
  RarSalt salt{};
  Rar5Keys keys;
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

Digest256 Fingerprint(const RarSource& source) {
  ByteWriter text;
  text.Add(Sha256(BytesOf(source.name)));
  text.Add(Sha256(source.contents));
  return Sha256(text.Written());
}

/// Salt and initial vectors come from what is packed: as different as the contents are, and the
/// same again for the same contents.
Cipher MakeCipher(std::span<const RarSource> sources, const std::string& password) {
  ByteWriter all;
  for (const RarSource& source : sources) all.Add(Fingerprint(source));
  Cipher cipher;
  cipher.salt = Beginning<16>(HmacSha256(BytesOf(password), all.Written()));
  cipher.keys = DeriveRar5Keys(password, cipher.salt, kExponent);
  return cipher;
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
  record.Add(CheckValueSum(cipher.keys.check));
  ByteWriter sized;
  sized.Vint(record.Written().size());
  sized.Add(record.Written());
  return sized.Written();
}

/// The header always names its data's size, even 0: some readers give up without.
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

void AddSource(ByteWriter& archive, const RarSource& source, const std::optional<Cipher>& cipher) {
  const std::uint32_t crc = Crc32(source.contents);
  if (!cipher || source.contents.empty()) {
    rar5::AddHeader(archive, FileFields(source, {}, source.contents.size(), crc));
    archive.Add(source.contents);
    return;
  }
  const auto iv = Beginning<16>(HmacSha256(cipher->keys.sums, Fingerprint(source)));
  const Bytes data = AesEncrypt(cipher->keys.cipher, iv, source.contents);
  rar5::AddHeader(archive, FileFields(source, CipherRecord(*cipher, iv), data.size(),
                                      TweakedCrc(crc, cipher->keys)));
  archive.Add(data);
}

}  // namespace

Bytes WriteRar(std::span<const RarSource> sources, const std::string& password) {
  std::optional<Cipher> cipher;
  if (!password.empty()) cipher = MakeCipher(sources, password);
  ByteWriter archive;
  archive.Add(rar5::kSignature);
  rar5::AddHeader(archive, {rar5::kMain, 0, 0});
  for (const RarSource& source : sources) AddSource(archive, source, cipher);
  rar5::AddHeader(archive, {rar5::kEnd, 0, 0});
  return archive.Written();
}

}  // namespace coilrun
