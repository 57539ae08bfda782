#include "rar_builder.h"

#include <algorithm>

#include "platform/rar/aes.h"
#include "platform/rar/byte_writer.h"
#include "platform/rar/checksums.h"
#include "platform/rar/rar4_format.h"
#include "platform/rar/rar5_format.h"
#include "platform/rar/rar_keys.h"
#include "support.h"

namespace coilrun {
namespace {

constexpr RarSalt kSalt = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
constexpr AesBlock kIv = {16, 15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1};
constexpr Rar4Salt kShortSalt = {8, 7, 6, 5, 4, 3, 2, 1};
constexpr std::uint32_t kDosTime = 0x5D76B4A0;

Bytes DataOf(const MadeEntry& entry) {
  return entry.packed ? *entry.packed : ToBytes(entry.contents);
}

class Writer5 {
 public:
  explicit Writer5(const MadeArchive& archive)
      : archive_(archive), keys_(DeriveRar5Keys(archive.password, kSalt, archive.exponent)) {}

  Bytes Write() {
    out_.Add(rar5::kSignature);
    if (archive_.locked == Locked::kHeadersToo) {
      ByteWriter fields;
      fields.Vint(rar5::kEncryption);
      fields.Vint(0);
      fields.Vint(0);
      AddRecipe(fields, archive_.checkValue ? rar5::kHasCheck : 0, false);
      rar5::AddHeader(out_, fields.Written());
    }
    const bool solid = std::any_of(archive_.entries.begin(), archive_.entries.end(),
                                   [](const MadeEntry& entry) { return entry.solid; });
    AddHeader({rar5::kMain, 0, static_cast<std::uint8_t>(solid ? 4 : 0)});
    for (const MadeEntry& entry : archive_.entries) AddEntry(entry);
    AddHeader({rar5::kEnd, 0, 0});
    return out_.Written();
  }

 private:
  void AddRecipe(ByteWriter& fields, std::uint64_t flags, bool withIv) {
    fields.Vint(flags);
    fields.U8(static_cast<std::uint64_t>(archive_.exponent));
    fields.Add(kSalt);
    if (withIv) fields.Add(kIv);
    if ((flags & rar5::kHasCheck) == 0) return;
    fields.Add(keys_.check);
    fields.Add(CheckValueSum(keys_.check));
  }

  void AddHeader(const Bytes& fields) {
    if (archive_.locked != Locked::kHeadersToo) return rar5::AddHeader(out_, fields);
    ByteWriter header;
    rar5::AddHeader(header, fields);
    out_.Add(kIv);
    out_.Add(AesEncrypt(keys_.cipher, kIv, header.Written()));
  }

  static void AddRecord(ByteWriter& extra, const ByteWriter& record) {
    extra.Vint(record.Written().size());
    extra.Add(record.Written());
  }

  Bytes Extra(const MadeEntry& entry) {
    ByteWriter extra;
    if (archive_.locked != Locked::kNothing && !entry.folder) {
      ByteWriter record;
      record.Vint(rar5::kCipher);
      record.Vint(0);
      AddRecipe(record, rar5::kTweakedSums | (archive_.checkValue ? rar5::kHasCheck : 0), true);
      AddRecord(extra, record);
    }
    if (entry.blake) {
      ByteWriter record;
      record.Vint(rar5::kHash);
      record.Vint(0);
      const Digest256 digest = Blake2sp(ToBytes(entry.contents));
      record.Add(archive_.locked == Locked::kNothing ? digest : HmacSha256(keys_.sums, digest));
      AddRecord(extra, record);
    }
    if (entry.linkTo) {
      ByteWriter record;
      record.Vint(rar5::kLink);
      record.Vint(1);
      record.Vint(0);
      record.Vint(entry.linkTo->size());
      record.Add(ToBytes(*entry.linkTo));
      AddRecord(extra, record);
    }
    return extra.Written();
  }

  void AddEntry(const MadeEntry& entry) {
    const bool locked = archive_.locked != Locked::kNothing && !entry.folder;
    const Bytes data = locked ? AesEncrypt(keys_.cipher, kIv, DataOf(entry)) : DataOf(entry);
    const std::uint32_t crc = Crc32(ToBytes(entry.contents));
    const Bytes extra = Extra(entry);
    ByteWriter fields;
    fields.Vint(rar5::kFile);
    fields.Vint(rar5::kHasData | rar5::kHasExtra);
    fields.Vint(extra.size());
    fields.Vint(data.size());
    fields.Vint(rar5::kHasTime | (entry.blake ? 0 : rar5::kHasCrc) |
                (entry.folder ? rar5::kFolder : 0));
    fields.Vint(entry.claimedSize.value_or(entry.contents.size()));
    fields.Vint(entry.folder ? 0x10 : 0x20);
    fields.U32(1'600'000'000);
    if (!entry.blake) fields.U32(locked ? TweakedCrc(crc, keys_) : crc);
    fields.Vint((entry.packed ? 3U << 7 : 0U) | (entry.solid ? 0x40U : 0U));
    fields.Vint(0);
    fields.Vint(entry.name.size());
    fields.Add(ToBytes(entry.name));
    fields.Add(extra);
    AddHeader(fields.Written());
    out_.Add(data);
  }

  const MadeArchive& archive_;
  Rar5Keys keys_;
  ByteWriter out_;
};

class Writer4 {
 public:
  explicit Writer4(const MadeArchive& archive)
      : archive_(archive), keys_(DeriveRar4Keys(archive.password, kShortSalt)) {}

  Bytes Write() {
    const bool all = archive_.locked == Locked::kHeadersToo;
    out_.Add(rar4::kSignature);
    out_.Add(Header(rar4::kMain, all ? rar4::kMainEncrypted : 0, Bytes(6)));
    for (const MadeEntry& entry : archive_.entries) AddEntry(entry);
    AddHeader(Header(rar4::kEnd, 0x4000, {}));
    return out_.Written();
  }

 private:
  static Bytes Header(std::uint8_t type, unsigned flags, const Bytes& fields) {
    ByteWriter checked;
    checked.U8(type);
    checked.U16(flags);
    checked.U16(7 + fields.size());
    checked.Add(fields);
    ByteWriter header;
    header.U16(Crc32(checked.Written()));
    header.Add(checked.Written());
    return header.Written();
  }

  void AddHeader(const Bytes& header) {
    if (archive_.locked != Locked::kHeadersToo) return out_.Add(header);
    out_.Add(kShortSalt);
    out_.Add(AesEncrypt(keys_.cipher, keys_.iv, header));
  }

  void AddEntry(const MadeEntry& entry) {
    const bool locked = archive_.locked != Locked::kNothing && !entry.folder;
    const Bytes data = locked ? AesEncrypt(keys_.cipher, keys_.iv, DataOf(entry)) : DataOf(entry);
    ByteWriter fields;
    fields.U32(data.size());
    fields.U32(entry.claimedSize.value_or(entry.contents.size()));
    fields.U8(entry.linkTo ? rar4::kHostUnix : 2U);
    fields.U32(Crc32(ToBytes(entry.contents)));
    fields.U32(kDosTime);
    fields.U8(29);
    fields.U8(rar4::kStored + (entry.packed ? 3U : 0U));
    fields.U16(entry.name.size());
    fields.U32(entry.linkTo ? 0xA1FFU : entry.folder ? 0x10U : 0x20U);
    fields.Add(ToBytes(entry.name));
    if (locked) fields.Add(kShortSalt);
    const bool wide = entry.name.find('\0') != std::string::npos;
    AddHeader(Header(rar4::kFile,
                     rar4::kHasData | (entry.folder ? rar4::kWindowMask : 0U) |
                         (locked ? rar4::kPassword | rar4::kSalt : 0U) |
                         (wide ? rar4::kUnicode : 0U) | (entry.solid ? rar4::kSolid : 0U),
                     fields.Written()));
    out_.Add(data);
  }

  const MadeArchive& archive_;
  Rar4Keys keys_;
  ByteWriter out_;
};

}  // namespace

Bytes MadeArchive::Write() const {
  return generation == 5 ? Writer5(*this).Write() : Writer4(*this).Write();
}

}  // namespace coilrun
