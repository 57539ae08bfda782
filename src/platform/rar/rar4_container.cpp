#include "platform/rar/rar4_container.h"

#include <algorithm>
#include <ctime>

#include "platform/rar/aes.h"
#include "platform/rar/checksums.h"
#include "platform/rar/rar4_format.h"
#include "platform/rar/rar4_names.h"
#include "platform/rar/rar_blocks.h"

namespace coilrun {
namespace {

constexpr std::size_t kMainSize = 13;

/// The fields that every header begins with.
struct BlockStart {
  std::uint16_t crc = 0;
  std::uint8_t type = 0;
  std::uint16_t flags = 0;
  std::uint16_t size = 0;
  std::uint64_t dataSize = 0;
};

BlockStart ReadBlockStart(ByteReader& reader) {
  BlockStart start;
  start.crc = reader.U16();
  start.type = reader.U8();
  start.flags = reader.U16();
  start.size = reader.U16();
  if (start.type == rar4::kFile || start.type == rar4::kSubBlock ||
      (start.flags & rar4::kHasData) != 0)
    start.dataSize = reader.U32();
  return start;
}

bool CrcFits(std::span<const std::uint8_t> header, std::uint16_t crc) {
  return header.size() >= 7 && (Crc32(header.subspan(2)) & 0xFFFF) == crc;
}

RarHeaderResult ReadPlainHeader(std::span<const std::uint8_t> archive, std::size_t at) {
  ByteReader reader(archive.subspan(at));
  const BlockStart start = ReadBlockStart(reader);
  reader.Seek(0);
  const auto header = reader.Take(start.size);
  if (!reader.Ok()) return {std::nullopt, kCutOff};
  return {RarHeader{{header.begin(), header.end()}, at + header.size()}, {}};
}

/// Each encrypted header has its own salt, and so its own key.
RarHeaderResult ReadEncryptedHeader(std::span<const std::uint8_t> archive, std::size_t at,
                                    RarKeyRing& keyRing) {
  ByteReader reader(archive.subspan(at));
  const auto salt = TakeArray<8>(reader);
  const auto firstBlock = reader.Take(kAesBlock);
  if (!reader.Ok()) return {std::nullopt, kCutOff};
  const auto [keys, problem] = keyRing.Keys4(salt);
  if (!keys) return {std::nullopt, problem};
  const auto first = AesDecrypt(keys->cipher, keys->iv, firstBlock);
  if (!first) return {std::nullopt, kCryptoFails};
  ByteReader peek(*first);
  const BlockStart start = ReadBlockStart(peek);
  reader.Seek(salt.size());
  const auto cipherText = reader.Take(RoundedToBlocks(std::size_t{start.size}));
  if (!reader.Ok()) return {std::nullopt, kDamagedOrWrongPassword};
  auto header = AesDecrypt(keys->cipher, keys->iv, cipherText);
  if (!header) return {std::nullopt, kCryptoFails};
  header->resize(start.size);
  return {RarHeader{std::move(*header), at + reader.Position()}, {}};
}

/// Seconds since 1970 of a date in the format of old file systems, which know only local time.
std::int64_t SecondsOf(std::uint32_t dosTime) {
  std::tm local{};
  local.tm_sec = static_cast<int>(dosTime & 31) * 2;
  local.tm_min = static_cast<int>(dosTime >> 5 & 63);
  local.tm_hour = static_cast<int>(dosTime >> 11 & 31);
  local.tm_mday = static_cast<int>(dosTime >> 16 & 31);
  local.tm_mon = static_cast<int>(dosTime >> 21 & 15) - 1;
  local.tm_year = static_cast<int>(dosTime >> 25) + 80;
  local.tm_isdst = -1;
  return std::mktime(&local);
}

/// Old times count in steps of two seconds; the exact times say whether a second is missing.
bool HasOddSecond(ByteReader& reader) {
  return (reader.U16() >> 12 & 0xC) == 0xC;
}

std::string ProblemOf(const RarPacked& packed, std::uint16_t flags) {
  if ((flags & (rar4::kSplitBefore | rar4::kSplitAfter)) != 0) return "continues in another volume";
  if (packed.method < 0 || packed.method > 5) return "compressed in an unknown way";
  const std::string version =
      std::to_string(packed.version / 10) + "." + std::to_string(packed.version % 10);
  if (packed.encryption4 && packed.version < rar4::kOldestVersion)
    return "encrypted by the old version " + version + " of the format";
  if (packed.method > 0 && packed.version < rar4::kOldestVersion)
    return "compressed by the old version " + version + " of the format";
  return {};
}

/// Reads a file header from its common fields on.
struct FileHeader {
  RarEntry entry;
  std::uint64_t dataSize = 0;
  std::size_t checkedSize = 0;
};

FileHeader ReadFile(ByteReader& reader, const BlockStart& start) {
  FileHeader file;
  RarEntry& entry = file.entry;
  file.dataSize = start.dataSize;
  entry.size = reader.U32();
  const std::uint8_t host = reader.U8();
  entry.packed.crc = reader.U32();
  const std::uint32_t dosTime = reader.U32();
  entry.packed.version = reader.U8();
  entry.packed.method = reader.U8() - rar4::kStored;
  const std::uint16_t nameSize = reader.U16();
  const std::uint32_t attributes = reader.U32();
  if ((start.flags & rar4::kLarge) != 0) {
    file.dataSize |= std::uint64_t{reader.U32()} << 32;
    entry.size |= std::uint64_t{reader.U32()} << 32;
  }
  const auto name = reader.Take(nameSize);
  entry.name = DecodeRar4Name(name, (start.flags & rar4::kUnicode) != 0);
  if ((start.flags & rar4::kPassword) != 0) entry.packed.encryption4.emplace();
  if ((start.flags & rar4::kSalt) != 0) {
    const auto salt = TakeArray<8>(reader);
    if (entry.packed.encryption4) entry.packed.encryption4->salt = salt;
  }
  file.checkedSize = reader.Position();
  const bool oddSecond = (start.flags & rar4::kExactTimes) != 0 && HasOddSecond(reader);
  if (dosTime != 0) entry.mtime = SecondsOf(dosTime) + (oddSecond ? 1 : 0);
  entry.folder = (start.flags & rar4::kWindowMask) == rar4::kWindowMask ||
                 (entry.packed.version < 20 && (attributes & 0x10) != 0);
  entry.packed.window = start.flags & rar4::kWindowMask;
  entry.packed.solid = (start.flags & rar4::kSolid) != 0;
  entry.problem = ProblemOf(entry.packed, start.flags);
  if (host == rar4::kHostUnix && (attributes & 0xF000) == 0xA000)
    entry.problem = "a link, which is never unpacked";
  return file;
}

class Walk {
 public:
  Walk(std::span<const std::uint8_t> archive, RarKeyRing& keys) : archive_(archive), keys_(keys) {}

  RarListing Run() {
    at_ = rar4::kSignature.size();
    while (!done_) Step();
    return std::move(listing_);
  }

 private:
  void Stop(const std::string& fault) {
    listing_.fault = fault;
    done_ = true;
  }
  void StopDamaged() { Stop(encrypted_ ? kDamagedOrWrongPassword : kDamaged); }

  void Step() {
    if (at_ == archive_.size()) return Stop(seenMain_ ? "" : kCutOff);
    const RarHeaderResult result =
        encrypted_ ? ReadEncryptedHeader(archive_, at_, keys_) : ReadPlainHeader(archive_, at_);
    if (!result.header) return Stop(result.fault);
    const std::span<const std::uint8_t> header(result.header->bytes);
    ByteReader reader(header);
    const BlockStart start = ReadBlockStart(reader);
    if (!reader.Ok()) return StopDamaged();
    at_ = result.header->end;
    Take(header, reader, start);
  }

  void Take(std::span<const std::uint8_t> header, ByteReader& reader, const BlockStart& start) {
    if (start.type == rar4::kFile || start.type == rar4::kSubBlock)
      return TakeFile(header, reader, start);
    const bool comment = start.type == rar4::kMain && (start.flags & rar4::kMainComment) != 0;
    const auto checked = comment ? header.first(std::min(header.size(), kMainSize)) : header;
    if (!CrcFits(checked, start.crc)) return StopDamaged();
    if (start.type == rar4::kMain) return BeginArchive(start);
    if (start.type == rar4::kEnd) return End(start);
    Pass(start.dataSize);
  }

  void End(const BlockStart& start) {
    const bool more = (start.flags & rar4::kMoreVolumes) != 0;
    Stop(more ? "the archive continues in another volume" : "");
  }

  void BeginArchive(const BlockStart& start) {
    if (seenMain_) return Stop(kDamaged);
    seenMain_ = true;
    encrypted_ = (start.flags & rar4::kMainEncrypted) != 0;
    if (encrypted_ && !keys_.HasPassword()) Stop("the archive is encrypted and needs a password");
  }

  void TakeFile(std::span<const std::uint8_t> header, ByteReader& reader, const BlockStart& start) {
    FileHeader file = ReadFile(reader, start);
    const bool comment = (start.flags & rar4::kFileComment) != 0;
    const auto checked = comment ? header.first(file.checkedSize) : header;
    if (!reader.Ok() || !CrcFits(checked, start.crc)) return StopDamaged();
    const std::uint64_t dataSize = file.dataSize;
    if (start.type == rar4::kFile) Add(std::move(file));
    if (!done_) Pass(dataSize);
  }

  void Add(FileHeader file) {
    RarEntry& entry = file.entry;
    PlaceContents(entry, at_, file.dataSize, archive_.size() - at_);
    if (listing_.entries.size() == kMaxEntries) return Stop("the archive has too many entries");
    listing_.entries.push_back(std::move(entry));
  }

  void Pass(std::uint64_t dataSize) {
    if (dataSize > archive_.size() - at_) return Stop(kCutOff);
    at_ += static_cast<std::size_t>(dataSize);
  }

  std::span<const std::uint8_t> archive_;
  RarKeyRing& keys_;
  RarListing listing_;
  std::size_t at_ = 0;
  bool seenMain_ = false;
  bool encrypted_ = false;
  bool done_ = false;
};

}  // namespace

bool IsRar4(std::span<const std::uint8_t> archive) {
  return archive.size() >= rar4::kSignature.size() &&
         std::equal(rar4::kSignature.begin(), rar4::kSignature.end(), archive.begin());
}

RarListing ListRar4(std::span<const std::uint8_t> archive, RarKeyRing& keys) {
  return Walk(archive, keys).Run();
}

}  // namespace coilrun
