#include "platform/rar/rar_reader.h"

#include <algorithm>
#include <utility>

#include "platform/rar/aes.h"
#include "platform/rar/checksums.h"
#include "platform/rar/entry_name.h"
#include "platform/rar/rar4_container.h"
#include "platform/rar/rar5_container.h"
#include "platform/rar/rar_blocks.h"

namespace coilrun {
namespace {

RarListing List(std::span<const std::uint8_t> file, RarKeyRing& keys) {
  if (IsRar5(file)) return ListRar5(file, keys);
  if (IsRar4(file)) return ListRar4(file, keys);
  return {{}, "not a RAR archive"};
}

bool Compressed(const RarEntry& entry) {
  return !entry.folder && entry.packed.method > 0;
}

/// Whether a wrong password can be told before the contents are read.
bool PasswordIsProven(const RarPacked& packed) {
  return packed.encryption5 && packed.encryption5->recipe.check;
}

/// libarchive corrupts compressed contents of generation 4 that outgrow its 4 MiB dictionary.
bool MayBeBeyondLibarchive(const RarEntry& entry) {
  return entry.packed.version > 0 && Compressed(entry) && entry.size >= std::uint64_t{4} << 20;
}

std::string DamageProblem(const RarEntry& entry) {
  if (MayBeBeyondLibarchive(entry))
    return "its contents are damaged or too large to decompress in this generation";
  return entry.packed.Encrypted() && !PasswordIsProven(entry.packed)
             ? "wrong password or damaged contents"
             : "its contents are damaged";
}

}  // namespace

bool RarReader::Knows(std::span<const std::uint8_t> file) {
  return IsRar5(file) || IsRar4(file);
}

RarReader::RarReader(Bytes file, std::string password)
    : RarReader(std::move(file), RarKeyRing(std::move(password))) {}

RarReader::RarReader(Bytes file, RarKeyRing keys)
    : file_(std::move(file)),
      keys_(std::move(keys)),
      generation_(IsRar5(file_) ? 5 : 4),
      listing_(List(file_, keys_)) {
  RefuseUnfit();
}

void RarReader::RefuseUnfit() {
  std::uint64_t total = 0;
  for (RarEntry& entry : listing_.entries) {
    while (entry.name.size() > 1 && entry.name.ends_with('/')) entry.name.pop_back();
    const bool tooLarge = entry.size > kMaxEntrySize || entry.packed.size > kMaxEntrySize;
    if (!tooLarge) total += entry.size;
    if (!entry.problem.empty()) continue;
    entry.problem = NameProblem(entry.name);
    if (tooLarge) entry.problem = "larger than 256 MiB";
    if (total > kMaxArchiveSize) entry.problem = "the archive holds more than 1 GiB";
  }
}

RarContents RarReader::Read(std::size_t index) {
  const RarEntry& entry = Entries()[index];
  if (!entry.problem.empty()) return {{}, entry.problem};
  if (entry.folder) return {};
  const std::string problem = PasswordProblem(entry.packed);
  if (!problem.empty()) return {{}, problem};
  RarContents contents = Compressed(entry) ? Unpack(index) : Unstore(entry);
  if (!contents.Ok()) return contents;
  const std::string wrong = SumsProblem(entry, contents.bytes);
  return wrong.empty() ? std::move(contents) : RarContents{{}, wrong};
}

std::string RarReader::PasswordProblem(const RarPacked& packed) {
  if (!packed.Encrypted()) return {};
  if (!keys_.HasPassword()) return "encrypted, and no password was given";
  if (packed.encryption4) return keys_.Keys4(packed.encryption4->salt).problem;
  const Rar5KeyRecipe& recipe = packed.encryption5->recipe;
  const auto [keys, problem] = keys_.Keys5(recipe.salt, recipe.exponent);
  if (!keys) return problem;
  if (recipe.check && *recipe.check != keys->check) return "wrong password";
  const bool provable = recipe.check || packed.crc || packed.blake;
  return provable ? "" : "nothing tells whether the password is right";
}

std::span<const std::uint8_t> RarReader::PackedBytes(const RarPacked& packed) const {
  return std::span(file_).subspan(packed.offset, packed.size);
}

/// The packed bytes, decrypted, of an entry without a `PasswordProblem`; nothing when libcrypto
/// fails.
std::optional<Bytes> RarReader::Decrypt(const RarPacked& packed) {
  const auto bytes = PackedBytes(packed);
  if (packed.encryption4) {
    const auto keys = keys_.Keys4(packed.encryption4->salt).keys;
    return keys ? AesDecrypt(keys->cipher, keys->iv, bytes) : std::nullopt;
  }
  if (packed.encryption5) {
    const Rar5KeyRecipe& recipe = packed.encryption5->recipe;
    const auto keys = keys_.Keys5(recipe.salt, recipe.exponent).keys;
    return keys ? AesDecrypt(keys->cipher, packed.encryption5->iv, bytes) : std::nullopt;
  }
  return Bytes(bytes.begin(), bytes.end());
}

RarContents RarReader::Unstore(const RarEntry& entry) {
  const std::uint64_t expected =
      entry.packed.Encrypted() ? RoundedToBlocks(entry.size) : entry.size;
  if (entry.packed.size != expected) return {{}, "its sizes do not fit"};
  auto contents = Decrypt(entry.packed);
  if (!contents) return {{}, kCryptoFails};
  contents->resize(static_cast<std::size_t>(entry.size));
  return {std::move(*contents), {}};
}

RarContents RarReader::Unpack(std::size_t index) {
  const std::string problem = PrepareUnpacker(index);
  if (!problem.empty()) return {{}, problem};
  const auto place = std::lower_bound(unpackerGroup_.begin(), unpackerGroup_.end(), index);
  auto contents = unpacker_->Unpack(static_cast<std::size_t>(place - unpackerGroup_.begin()));
  if (!contents) return {{}, DamageProblem(Entries()[index])};
  return {std::move(*contents), {}};
}

/// Prepares the unpacker for the run of compressed entries that `index` belongs to.
std::string RarReader::PrepareUnpacker(std::size_t index) {
  if (std::binary_search(unpackerGroup_.begin(), unpackerGroup_.end(), index)) return {};
  if (generation_ == 4 && Entries()[index].packed.solid)
    return "compressed together with earlier entries, which cannot be read in this generation";
  const std::vector<std::size_t> group = GroupOf(index);
  if (!std::binary_search(group.begin(), group.end(), index))
    return "depends on an earlier entry that cannot be read";

  std::vector<CompressedItem> items;
  for (const std::size_t member : group) {
    const RarEntry& entry = Entries()[member];
    const RarPacked& packed = entry.packed;
    std::string problem = PasswordProblem(packed);
    if (!problem.empty()) return problem;
    auto data = Decrypt(packed);
    if (!data) return kCryptoFails;
    CompressedItem item{entry.size,     packed.crc.value_or(0), packed.method,
                        packed.version, packed.window,          std::move(*data)};
    if (generation_ == 5 && packed.Encrypted()) item.data.resize(PackedBlocksSize(item.data));
    items.push_back(std::move(item));
  }
  unpacker_ = std::make_unique<RarUnpacker>(generation_, items);
  unpackerGroup_ = group;
  return {};
}

/// The compressed entries that share a dictionary with `index`, as far as they can be read. Stored
/// entries between them leave the dictionary alone.
std::vector<std::size_t> RarReader::GroupOf(std::size_t index) const {
  const auto& entries = Entries();
  const auto begins = [&entries](std::size_t i) {
    return Compressed(entries[i]) && !entries[i].packed.solid;
  };
  std::size_t first = index;
  while (first > 0 && !begins(first)) --first;
  if (!begins(first) || !entries[first].problem.empty()) return {};
  std::vector<std::size_t> group = {first};
  if (generation_ == 4) return group;
  for (std::size_t i = first + 1; i < entries.size() && !begins(i); ++i) {
    if (!Compressed(entries[i])) continue;
    if (!entries[i].problem.empty()) break;
    group.push_back(i);
  }
  return group;
}

/// Why contents are not what the archive says they are; empty when all sums match.
std::string RarReader::SumsProblem(const RarEntry& entry, const Bytes& contents) {
  const RarPacked& packed = entry.packed;
  std::optional<Rar5Keys> keys;
  if (packed.encryption5 && packed.encryption5->tweakedSums) {
    keys = keys_.Keys5(packed.encryption5->recipe.salt, packed.encryption5->recipe.exponent).keys;
    if (!keys) return kCryptoFails;
  }
  if (packed.crc) {
    const std::uint32_t plain = Crc32(contents);
    const std::optional<std::uint32_t> crc = keys ? TweakedCrc(plain, *keys) : plain;
    if (!crc) return kCryptoFails;
    if (*crc != *packed.crc) return DamageProblem(entry);
  }
  if (packed.blake) {
    auto digest = Blake2sp(contents);
    if (digest && keys) digest = HmacSha256(keys->sums, *digest);
    if (!digest) return kCryptoFails;
    if (*digest != *packed.blake) return DamageProblem(entry);
  }
  return {};
}

}  // namespace coilrun
