#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace coilrun {

/// Reads little-endian numbers from a span of bytes. Reading past the end yields zeros and marks
/// the reader as failed for good, so a parser may read a whole header and check `Ok()` once.
class ByteReader {
 public:
  explicit ByteReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  std::uint8_t U8() { return static_cast<std::uint8_t>(Number(1)); }
  std::uint16_t U16() { return static_cast<std::uint16_t>(Number(2)); }
  std::uint32_t U32() { return static_cast<std::uint32_t>(Number(4)); }
  std::uint64_t U64() { return Number(8); }
  std::int32_t I32() { return static_cast<std::int32_t>(U32()); }

  /// The next `count` bytes; empty, and the reader failed, when fewer are left. Counts and
  /// positions are 64 bits wide on every machine, as files hold them.
  std::span<const std::uint8_t> Take(std::uint64_t count) {
    if (count > Left()) return Fail();
    const auto taken = bytes_.subspan(at_, static_cast<std::size_t>(count));
    at_ += taken.size();
    return taken;
  }
  void Skip(std::uint64_t count) { Take(count); }
  /// Goes to a position counted from the start of the span.
  void Seek(std::uint64_t position) {
    if (position > bytes_.size()) {
      Fail();
    } else {
      at_ = static_cast<std::size_t>(position);
    }
  }

  std::size_t Position() const { return at_; }
  std::size_t Left() const { return bytes_.size() - at_; }
  bool Ok() const { return ok_; }

 private:
  std::span<const std::uint8_t> Fail() {
    ok_ = false;
    at_ = bytes_.size();
    return {};
  }
  std::uint64_t Number(std::size_t size) {
    std::uint64_t value = 0;
    std::size_t shift = 0;
    for (const std::uint8_t byte : Take(size)) {
      value |= std::uint64_t{byte} << shift;
      shift += 8;
    }
    return value;
  }

  std::span<const std::uint8_t> bytes_;
  std::size_t at_ = 0;
  bool ok_ = true;
};

}  // namespace coilrun
