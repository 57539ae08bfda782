#include "rar_streams.h"

#include <array>
#include <map>
#include <vector>

#include "platform/rar/byte_writer.h"

namespace coilrun {
namespace {

class BitWriter {
 public:
  void Bits(unsigned value, int count) {
    for (int bit = count - 1; bit >= 0; --bit) {
      if (used_ == 0) bytes.push_back(0);
      bytes.back() |= static_cast<std::uint8_t>((value >> bit & 1) << (7 - used_));
      used_ = (used_ + 1) % 8;
    }
  }
  /// Bits used of the last byte, 1 to 8.
  int LastBits() const { return used_ == 0 ? 8 : used_; }

  Bytes bytes;

 private:
  int used_ = 0;
};

/// A canonical Huffman code: the length of each symbol's code, 0 for symbols that never come.
class Code {
 public:
  explicit Code(std::vector<int> lengths) : lengths_(std::move(lengths)) {
    unsigned next = 0;
    for (int length = 1; length < 16; ++length, next <<= 1) {
      for (std::size_t symbol = 0; symbol < lengths_.size(); ++symbol)
        if (lengths_[symbol] == length) codes_[static_cast<int>(symbol)] = next++;
    }
  }

  void Write(BitWriter& bits, int symbol) const {
    bits.Bits(codes_.at(symbol), lengths_[static_cast<std::size_t>(symbol)]);
  }

 private:
  std::vector<int> lengths_;
  std::map<int, unsigned> codes_;
};

/// Code lengths where the given ranges of symbols have codes.
struct Range {
  std::size_t first;
  std::size_t count;
  int length;
};
std::vector<int> Lengths(std::size_t symbols, const std::vector<Range>& ranges) {
  std::vector<int> lengths(symbols, 0);
  for (const Range& range : ranges) {
    for (std::size_t i = 0; i < range.count; ++i) lengths[range.first + i] = range.length;
  }
  return lengths;
}

/// The code lengths of all codes in a row, themselves coded: first how.
void WriteTables(BitWriter& bits, const std::vector<int>& how, const std::vector<int>& lengths) {
  for (const int length : how) bits.Bits(static_cast<unsigned>(length), 4);
  const Code code(how);
  for (const int length : lengths) code.Write(bits, length);
}

std::vector<int> Joined(std::vector<int> lengths, const std::vector<int>& more, std::size_t empty) {
  lengths.insert(lengths.end(), more.begin(), more.end());
  lengths.resize(lengths.size() + empty);
  return lengths;
}

/// Both generations code distances 1 to 16 alike: eight slots, the upper four with extra bits.
std::vector<int> DistanceLengths(std::size_t slots) {
  return Lengths(slots, {{0, 8, 3}});
}

void WriteDistance(BitWriter& bits, const Code& code, int distance) {
  constexpr std::array<int, 8> kFirst = {1, 2, 3, 4, 5, 7, 9, 13};
  constexpr std::array<int, 8> kExtraBits = {0, 0, 0, 0, 1, 1, 2, 2};
  std::size_t slot = kFirst.size() - 1;
  while (kFirst[slot] > distance) --slot;
  code.Write(bits, static_cast<int>(slot));
  bits.Bits(static_cast<unsigned>(distance - kFirst[slot]), kExtraBits[slot]);
}

}  // namespace

Bytes CompressRar4(std::string_view text, Repeat repeat) {
  constexpr int kEndOfBlock = 256;
  constexpr int kThreeBytes = 271;
  const auto symbols = Lengths(299, {{0, 256, 9}, {kEndOfBlock, 1, 2}, {kThreeBytes, 4, 4}});
  const auto distances = DistanceLengths(60);
  BitWriter bits;
  bits.Bits(0, 2);  // not the statistical method; new tables
  WriteTables(bits, Lengths(20, {{0, 1, 1}, {2, 3, 3}, {9, 1, 3}}),
              Joined(symbols, distances, 17 + 28));
  const Code code(symbols);
  for (const char letter : text) code.Write(bits, static_cast<unsigned char>(letter));
  if (repeat.length > 0) {
    code.Write(bits, kThreeBytes + repeat.length - 3);
    WriteDistance(bits, Code(distances), repeat.distance);
  }
  code.Write(bits, kEndOfBlock);
  bits.Bits(1, 2);  // the file ends, the next one has tables of its own
  bits.Bits(0, 32);
  return bits.bytes;
}

Bytes CompressRar5(std::string_view text, Repeat repeat) {
  constexpr int kTwoBytes = 262;
  const auto symbols = Lengths(306, {{0, 256, 9}, {kTwoBytes, 8, 4}});
  const auto distances = DistanceLengths(64);
  BitWriter bits;
  WriteTables(bits, Lengths(20, {{0, 1, 2}, {3, 2, 2}, {9, 1, 2}}),
              Joined(symbols, distances, 16 + 44));
  const Code code(symbols);
  for (const char letter : text) code.Write(bits, static_cast<unsigned char>(letter));
  if (repeat.length > 0) {
    code.Write(bits, kTwoBytes + repeat.length - 2);
    WriteDistance(bits, Code(distances), repeat.distance);
  }
  // The block's header: last of the file, with tables, a size of two bytes.
  const auto flags = static_cast<std::uint8_t>(0x80 | 0x40 | 1 << 3 | (bits.LastBits() - 1));
  const auto low = static_cast<std::uint8_t>(bits.bytes.size());
  const auto high = static_cast<std::uint8_t>(bits.bytes.size() >> 8);
  ByteWriter block;
  block.U8(flags);
  block.U8(0x5AU ^ flags ^ low ^ high);
  block.U8(low);
  block.U8(high);
  block.Add(bits.bytes);
  return block.Written();
}

}  // namespace coilrun
