#include "rar_builder.h"

#include "platform/rar/aes.h"
#include "platform/rar/checksums.h"
#include "platform/rar/rar5_format.h"
#include "platform/rar/rar_keys.h"

namespace coilrun {
namespace {

constexpr RarSalt kSalt = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
constexpr AesBlock kIv = {16, 15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1};
constexpr int kExponent = 3;

void AddRecord(ByteWriter& extra, rar5::ExtraType type, const Bytes& fields) {
  extra.Vint(fields.size() + 1);
  extra.Vint(type);
  extra.Add(fields);
}

Bytes CipherFields(const Rar5Keys& keys, bool checkValue) {
  ByteWriter fields;
  fields.Vint(0);
  fields.Vint(rar5::kTweakedSums | (checkValue ? rar5::kHasCheck : 0));
  fields.U8(kExponent);
  fields.Add(kSalt);
  fields.Add(kIv);
  if (!checkValue) return fields.Written();
  fields.Add(keys.check);
  fields.Add(CheckValueSum(keys.check).value());
  return fields.Written();
}

void AddEntry(ByteWriter& archive, const MadeEntry& entry, const Rar5Keys* keys, bool checkValue) {
  const Bytes contents = ToBytes(entry.contents);
  Bytes data = entry.packed.value_or(contents);
  if (keys) data = AesEncrypt(keys->cipher, kIv, data).value();
  ByteWriter extra;
  if (keys) AddRecord(extra, rar5::kCipher, CipherFields(*keys, checkValue));
  if (entry.blake) {
    ByteWriter hash;
    hash.Vint(0);
    hash.Add(keys ? HmacSha256(keys->sums, *entry.blake).value() : *entry.blake);
    AddRecord(extra, rar5::kHash, hash.Written());
  }
  if (entry.link) AddRecord(extra, rar5::kLink, {1, 0, 2, '.', '.'});
  ByteWriter fields;
  fields.Vint(rar5::kFile);
  fields.Vint(rar5::kHasData | rar5::kHasExtra);
  fields.Vint(extra.Written().size());
  fields.Vint(data.size());
  fields.Vint((entry.blake ? 0 : rar5::kHasCrc) | (entry.folder ? rar5::kFolder : 0));
  fields.Vint(entry.claimedSize.value_or(contents.size()));
  fields.Vint(0);
  const std::uint32_t crc = Crc32(contents);
  if (!entry.blake) fields.U32(keys ? TweakedCrc(crc, *keys).value() : crc);
  fields.Vint((entry.packed ? 3U << 7 : 0U) | (entry.solid ? 0x40U : 0U));
  fields.Vint(0);
  fields.Vint(entry.name.size());
  fields.Add(ToBytes(entry.name));
  fields.Add(extra.Written());
  rar5::AddHeader(archive, fields.Written());
  archive.Add(data);
}

}  // namespace

Bytes MadeArchive::Write() const {
  const Rar5Keys keys = DeriveRar5Keys(kPassword, kSalt, kExponent).value();
  ByteWriter archive;
  archive.Add(rar5::kSignature);
  rar5::AddHeader(archive, {rar5::kMain, 0, 0});
  for (const MadeEntry& entry : entries)
    AddEntry(archive, entry, locked && !entry.folder ? &keys : nullptr, checkValue);
  rar5::AddHeader(archive, {rar5::kEnd, 0, 0});
  return archive.Written();
}

}  // namespace coilrun
