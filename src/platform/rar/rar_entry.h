#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace coilrun {

/// What an archive may demand of us; anything beyond is refused as an archive bomb.
inline constexpr std::uint64_t kMaxEntrySize = std::uint64_t{256} << 20;
inline constexpr std::uint64_t kMaxArchiveSize = std::uint64_t{1} << 30;
inline constexpr std::size_t kMaxEntries = 65536;

using RarSalt = std::array<std::uint8_t, 16>;
using Rar4Salt = std::array<std::uint8_t, 8>;
using AesBlock = std::array<std::uint8_t, 16>;
using Digest256 = std::array<std::uint8_t, 32>;
using RarCheckValue = std::array<std::uint8_t, 8>;

/// How to make the keys of a generation 5 archive from a password: 2^exponent rounds.
struct Rar5KeyRecipe {
  RarSalt salt{};
  int exponent = 0;
  std::optional<RarCheckValue> check;
};

struct Rar5Encryption {
  Rar5KeyRecipe recipe;
  AesBlock iv{};
  bool tweakedSums = false;
};

struct Rar4Encryption {
  std::optional<Rar4Salt> salt;
};

/// Where the packed bytes of an entry lie and what was done to them. Method 0 means stored.
struct RarPacked {
  std::size_t offset = 0;
  std::size_t size = 0;
  int method = 0;
  int version = 0;
  unsigned window = 0;
  bool solid = false;
  std::optional<std::uint32_t> crc;
  std::optional<Digest256> blake;
  std::optional<Rar4Encryption> encryption4;
  std::optional<Rar5Encryption> encryption5;

  bool Encrypted() const { return encryption4 || encryption5; }
};

/// One file or folder of an archive. `name` is UTF-8 with slashes, `mtime` in seconds since 1970.
/// `problem` says in words why the entry cannot be read; it is empty when it may be readable.
struct RarEntry {
  std::string name;
  bool folder = false;
  std::uint64_t size = 0;
  std::optional<std::int64_t> mtime;
  std::string problem;
  RarPacked packed;
};

/// The walk over an archive: its entries, and why the walk stopped (empty at a proper end).
struct RarListing {
  std::vector<RarEntry> entries;
  std::string fault;
};

}  // namespace coilrun
