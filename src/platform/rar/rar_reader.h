#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/rar/rar_entry.h"
#include "platform/rar/rar_keys.h"
#include "platform/rar/rar_unpacker.h"
#include "ports/bytes.h"

namespace coilrun {

/// The contents of an entry; `problem` says in words why there are none.
struct RarContents {
  Bytes bytes;
  std::string problem;

  bool Ok() const { return problem.empty(); }
};

/// Reads RAR archives of both generations from memory: 1.5 to 4.x, and 5. What `Read` returns has
/// the declared size and the right checksum.
class RarReader {
 public:
  /// True when the file begins like a RAR archive.
  static bool Knows(std::span<const std::uint8_t> file);

  /// `password` is UTF-8; empty for none.
  RarReader(Bytes file, std::string password);
  /// With a key ring that may already hold keys.
  RarReader(Bytes file, RarKeyRing keys);

  const std::vector<RarEntry>& Entries() const { return listing_.entries; }
  /// Why the walk over the entries stopped; empty when it reached a proper end.
  const std::string& Fault() const { return listing_.fault; }
  const RarKeyRing& Keys() const { return keys_; }
  /// Reads an entry, fast when they are read in order. A folder has no contents.
  RarContents Read(std::size_t index);

 private:
  void RefuseUnfit();
  std::string PasswordProblem(const RarPacked& packed);
  std::span<const std::uint8_t> PackedBytes(const RarPacked& packed) const;
  std::optional<Bytes> Decrypt(const RarPacked& packed);
  RarContents Unstore(const RarEntry& entry);
  RarContents Unpack(std::size_t index);
  std::string PrepareUnpacker(std::size_t index);
  std::vector<std::size_t> GroupOf(std::size_t index) const;
  std::string SumsProblem(const RarEntry& entry, const Bytes& contents);

  Bytes file_;
  RarKeyRing keys_;
  int generation_ = 0;
  RarListing listing_;
  std::unique_ptr<RarUnpacker> unpacker_;
  std::vector<std::size_t> unpackerGroup_;
};

}  // namespace coilrun
