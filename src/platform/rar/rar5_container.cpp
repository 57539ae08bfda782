#include "platform/rar/rar5_container.h"

#include <algorithm>

#include "platform/rar/aes.h"
#include "platform/rar/checksums.h"
#include "platform/rar/rar5_format.h"
#include "platform/rar/rar_blocks.h"

namespace coilrun {
namespace {

constexpr std::size_t kMaxHeaderSize = std::size_t{2} << 20;
constexpr std::int64_t kTicksPerSecond = 10'000'000;
constexpr std::int64_t kSecondsFrom1601To1970 = 11'644'473'600;

/// Seven bits per byte, lowest first, with the top bit set while more follow.
std::uint64_t Vint(ByteReader& reader) {
  std::uint64_t value = 0;
  for (unsigned shift = 0; shift < 64; shift += 7) {
    const std::uint8_t byte = reader.U8();
    value |= std::uint64_t{byte & 0x7FU} << shift;
    if (byte < 0x80) return value;
  }
  reader.Skip(reader.Left() + 1);
  return 0;
}

/// The fields that every header begins with.
struct BlockStart {
  std::uint64_t type = 0;
  std::uint64_t flags = 0;
  std::uint64_t extraSize = 0;
  std::uint64_t dataSize = 0;
};

BlockStart ReadBlockStart(ByteReader& reader) {
  BlockStart start;
  start.type = Vint(reader);
  start.flags = Vint(reader);
  if ((start.flags & rar5::kHasExtra) != 0) start.extraSize = Vint(reader);
  if ((start.flags & rar5::kHasData) != 0) start.dataSize = Vint(reader);
  return start;
}

/// Reads `header` (the size field and all that it counts); `end` is where it ends in the archive.
RarHeaderResult Proven(std::span<const std::uint8_t> header, std::uint32_t crc, std::size_t end,
                       const char* fault) {
  if (Crc32(header) != crc) return {std::nullopt, fault};
  ByteReader reader(header);
  Vint(reader);
  const auto body = header.subspan(reader.Position());
  return {RarHeader{{body.begin(), body.end()}, end}, {}};
}

RarHeaderResult ReadPlainHeader(std::span<const std::uint8_t> archive, std::size_t at) {
  ByteReader reader(archive);
  reader.Seek(at);
  const std::uint32_t crc = reader.U32();
  const std::size_t start = reader.Position();
  const std::uint64_t size = Vint(reader);
  if (!reader.Ok()) return {std::nullopt, kCutOff};
  if (size > kMaxHeaderSize) return {std::nullopt, kDamaged};
  reader.Skip(size);
  if (!reader.Ok()) return {std::nullopt, kCutOff};
  return Proven(archive.subspan(start, reader.Position() - start), crc, reader.Position(),
                kDamaged);
}

RarHeaderResult ReadEncryptedHeader(std::span<const std::uint8_t> archive, std::size_t at,
                                    const Rar5Keys& keys) {
  ByteReader reader(archive);
  reader.Seek(at);
  const auto iv = TakeArray<kAesBlock>(reader);
  const std::size_t start = reader.Position();
  const auto first = AesDecrypt(keys.cipher, iv, reader.Take(kAesBlock));
  if (!reader.Ok()) return {std::nullopt, kCutOff};
  if (!first) return {std::nullopt, kCryptoFails};
  ByteReader peek(*first);
  const std::uint32_t crc = peek.U32();
  const std::uint64_t body = Vint(peek);
  if (!peek.Ok() || body > kMaxHeaderSize) return {std::nullopt, kDamagedOrWrongPassword};
  const std::size_t size = peek.Position() + static_cast<std::size_t>(body);
  reader.Seek(start);
  const auto cipherText = reader.Take(RoundedToBlocks(size));
  if (!reader.Ok()) return {std::nullopt, kCutOff};
  const auto header = AesDecrypt(keys.cipher, iv, cipherText);
  if (!header) return {std::nullopt, kCryptoFails};
  return Proven(std::span(*header).subspan(4, size - 4), crc, reader.Position(),
                kDamagedOrWrongPassword);
}

std::optional<RarCheckValue> ReadCheck(ByteReader& reader) {
  const auto check = TakeArray<8>(reader);
  const auto sum = TakeArray<4>(reader);
  if (!reader.Ok() || CheckValueSum(check) != sum) return std::nullopt;
  return check;
}

void ReadCipherRecord(ByteReader& reader, RarEntry& entry) {
  const std::uint64_t version = Vint(reader);
  const std::uint64_t flags = Vint(reader);
  Rar5Encryption encryption;
  encryption.tweakedSums = (flags & rar5::kTweakedSums) != 0;
  encryption.recipe.exponent = reader.U8();
  encryption.recipe.salt = TakeArray<16>(reader);
  encryption.iv = TakeArray<16>(reader);
  if (!reader.Ok() || version != 0) entry.problem = "encrypted in an unknown way";
  if ((flags & rar5::kHasCheck) != 0) encryption.recipe.check = ReadCheck(reader);
  entry.packed.encryption5 = encryption;
}

void ReadTimeRecord(ByteReader& reader, RarEntry& entry) {
  const std::uint64_t flags = Vint(reader);
  const bool unixTime = (flags & 1) != 0;
  if ((flags & 2) == 0) return;
  const std::int64_t time =
      unixTime ? reader.U32()
               : static_cast<std::int64_t>(reader.U64()) / kTicksPerSecond - kSecondsFrom1601To1970;
  if (reader.Ok()) entry.mtime = time;
}

void ReadHashRecord(ByteReader& reader, RarEntry& entry) {
  if (Vint(reader) != 0) return;
  const auto hash = TakeArray<32>(reader);
  if (reader.Ok()) entry.packed.blake = hash;
}

void ReadExtraRecords(std::span<const std::uint8_t> extra, RarEntry& entry) {
  ByteReader reader(extra);
  while (reader.Left() > 0) {
    const std::uint64_t size = Vint(reader);
    ByteReader record(reader.Take(size));
    if (!reader.Ok()) {
      entry.problem = "its description is damaged";
      return;
    }
    const std::uint64_t type = Vint(record);
    if (type == rar5::kCipher) ReadCipherRecord(record, entry);
    if (type == rar5::kHash) ReadHashRecord(record, entry);
    if (type == rar5::kTimes) ReadTimeRecord(record, entry);
    if (type == rar5::kLink) entry.problem = "a link, which is never unpacked";
  }
}

void ReadCompression(std::uint64_t info, RarEntry& entry) {
  entry.packed.version = static_cast<int>(info & 0x3F);
  entry.packed.solid = (info & 0x40) != 0;
  entry.packed.method = static_cast<int>(info >> 7 & 7);
  entry.packed.window = static_cast<unsigned>(info >> 10 & 15);
  if (entry.packed.version != 0) entry.problem = "compressed by a newer version of the format";
  if (entry.packed.method > 5) entry.problem = "compressed in an unknown way";
}

/// Reads a file block from behind its common fields.
RarEntry ReadFile(ByteReader& reader, const BlockStart& start) {
  RarEntry entry;
  const std::uint64_t flags = Vint(reader);
  entry.folder = (flags & rar5::kFolder) != 0;
  entry.size = Vint(reader);
  Vint(reader);
  if ((flags & rar5::kHasTime) != 0) entry.mtime = reader.U32();
  if ((flags & rar5::kHasCrc) != 0) entry.packed.crc = reader.U32();
  ReadCompression(Vint(reader), entry);
  Vint(reader);
  const auto name = reader.Take(Vint(reader));
  entry.name.assign(name.begin(), name.end());
  if ((flags & rar5::kSizeUnknown) != 0) entry.problem = "its size is not known";
  if ((start.flags & (rar5::kSplitBefore | rar5::kSplitAfter)) != 0)
    entry.problem = "continues in another volume";
  return entry;
}

class Walk {
 public:
  Walk(std::span<const std::uint8_t> archive, RarKeyRing& keys) : archive_(archive), keys_(keys) {}

  RarListing Run() {
    at_ = rar5::kSignature.size();
    while (!done_) Step();
    return std::move(listing_);
  }

 private:
  void Stop(const std::string& fault) {
    listing_.fault = fault;
    done_ = true;
  }

  void Step() {
    const RarHeaderResult result = headerKeys_ ? ReadEncryptedHeader(archive_, at_, *headerKeys_)
                                               : ReadPlainHeader(archive_, at_);
    if (!result.header) return Stop(result.fault);
    ByteReader reader(result.header->bytes);
    const BlockStart start = ReadBlockStart(reader);
    if (!reader.Ok()) return Stop(kDamaged);
    at_ = result.header->end;
    if (start.type == rar5::kEncryption) return BeginEncryption(reader);
    if (start.type == rar5::kEnd) return End(reader);
    if (start.type == rar5::kFile) AddFile(reader, start, result.header->bytes);
    if (done_) return;
    if (start.dataSize > archive_.size() - at_) return Stop(kCutOff);
    at_ += static_cast<std::size_t>(start.dataSize);
  }

  void AddFile(ByteReader& reader, const BlockStart& start, std::span<const std::uint8_t> header) {
    RarEntry entry = ReadFile(reader, start);
    if (!reader.Ok() || start.extraSize > reader.Left()) return Stop(kDamaged);
    ReadExtraRecords(header.last(static_cast<std::size_t>(start.extraSize)), entry);
    PlaceContents(entry, at_, start.dataSize, archive_.size() - at_);
    if (listing_.entries.size() == kMaxEntries) return Stop("the archive has too many entries");
    listing_.entries.push_back(std::move(entry));
  }

  void BeginEncryption(ByteReader& reader) {
    const std::uint64_t version = Vint(reader);
    const std::uint64_t flags = Vint(reader);
    const int exponent = reader.U8();
    const auto salt = TakeArray<16>(reader);
    if (!reader.Ok() || headerKeys_) return Stop(kDamaged);
    if (version != 0) return Stop("the archive is encrypted in an unknown way");
    if (!keys_.HasPassword()) return Stop("the archive is encrypted and needs a password");
    const auto [keys, problem] = keys_.Keys5(salt, exponent);
    if (!keys) return Stop(problem);
    headerKeys_ = keys;
    if ((flags & rar5::kHasCheck) == 0) return;
    const auto check = ReadCheck(reader);
    if (check && *check != headerKeys_->check) Stop("wrong password");
  }

  void End(ByteReader& reader) {
    const bool more = (Vint(reader) & rar5::kMoreVolumes) != 0;
    Stop(more ? "the archive continues in another volume" : "");
  }

  std::span<const std::uint8_t> archive_;
  RarKeyRing& keys_;
  std::optional<Rar5Keys> headerKeys_;
  RarListing listing_;
  std::size_t at_ = 0;
  bool done_ = false;
};

}  // namespace

bool IsRar5(std::span<const std::uint8_t> archive) {
  return archive.size() >= rar5::kSignature.size() &&
         std::equal(rar5::kSignature.begin(), rar5::kSignature.end(), archive.begin());
}

RarListing ListRar5(std::span<const std::uint8_t> archive, RarKeyRing& keys) {
  return Walk(archive, keys).Run();
}

}  // namespace coilrun
