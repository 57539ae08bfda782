#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <vector>

#include "platform/rar/checksums.h"
#include "ports/byte_reader.h"

namespace coilrun {
namespace {

using Words = std::array<std::uint32_t, 8>;

constexpr std::size_t kBlock = 64;
constexpr std::size_t kLeaves = 8;
constexpr std::uint32_t kDigestSize = 32;

constexpr Words kStart = {0x6A09E667, 0xBB67AE85, 0x3C6EF372, 0xA54FF53A,
                          0x510E527F, 0x9B05688C, 0x1F83D9AB, 0x5BE0CD19};

constexpr std::array<std::array<std::uint8_t, 16>, 10> kOrder = {{
    {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15},
    {14, 10, 4, 8, 9, 15, 13, 6, 1, 12, 0, 2, 11, 7, 5, 3},
    {11, 8, 12, 0, 5, 2, 15, 13, 10, 14, 3, 6, 7, 1, 9, 4},
    {7, 9, 3, 1, 13, 12, 11, 14, 2, 6, 5, 10, 4, 0, 15, 8},
    {9, 0, 5, 7, 2, 4, 10, 15, 14, 1, 11, 12, 6, 8, 3, 13},
    {2, 12, 6, 10, 0, 11, 8, 3, 4, 13, 7, 5, 15, 14, 1, 9},
    {12, 5, 1, 15, 14, 13, 4, 10, 0, 7, 6, 3, 9, 2, 8, 11},
    {13, 11, 7, 14, 12, 1, 3, 9, 5, 0, 15, 4, 8, 6, 2, 10},
    {6, 15, 14, 9, 11, 3, 0, 8, 12, 2, 13, 7, 1, 4, 10, 5},
    {10, 2, 8, 4, 7, 6, 1, 5, 15, 11, 9, 14, 3, 12, 13, 0},
}};

constexpr std::array<std::array<std::size_t, 4>, 8> kMixes = {{{0, 4, 8, 12},
                                                               {1, 5, 9, 13},
                                                               {2, 6, 10, 14},
                                                               {3, 7, 11, 15},
                                                               {0, 5, 10, 15},
                                                               {1, 6, 11, 12},
                                                               {2, 7, 8, 13},
                                                               {3, 4, 9, 14}}};

/// One node of the tree: BLAKE2s with the parameters of its place.
class Node {
 public:
  Node(std::uint32_t offset, std::uint32_t depth, bool last) : last_(last) {
    state_[0] ^= kDigestSize | kLeaves << 16 | 2U << 24;
    state_[2] ^= offset;
    state_[3] ^= depth << 16 | kDigestSize << 24;
  }

  /// Takes at most one block; only the last one may be short.
  void Add(std::span<const std::uint8_t> block, bool final) {
    count_ += block.size();
    std::array<std::uint8_t, kBlock> padded{};
    std::copy(block.begin(), block.end(), padded.begin());
    ByteReader reader(padded);
    std::array<std::uint32_t, 16> message{};
    for (auto& word : message) word = reader.U32();
    Compress(message, final);
  }

  Digest256 Result() const {
    Digest256 digest{};
    for (std::size_t i = 0; i < digest.size(); ++i)
      digest[i] = static_cast<std::uint8_t>(state_[i / 4] >> i % 4 * 8);
    return digest;
  }

 private:
  void Compress(const std::array<std::uint32_t, 16>& message, bool final) {
    std::array<std::uint32_t, 16> v{};
    std::copy(state_.begin(), state_.end(), v.begin());
    std::copy(kStart.begin(), kStart.end(), v.begin() + 8);
    v[12] ^= static_cast<std::uint32_t>(count_);
    v[13] ^= static_cast<std::uint32_t>(count_ >> 32);
    if (final) v[14] = ~v[14];
    if (final && last_) v[15] = ~v[15];
    for (const auto& order : kOrder) {
      for (std::size_t i = 0; i < kMixes.size(); ++i)
        Mix(v, kMixes[i], message[order[2 * i]], message[order[2 * i + 1]]);
    }
    for (std::size_t i = 0; i < state_.size(); ++i) state_[i] ^= v[i] ^ v[i + 8];
  }

  static void Mix(std::array<std::uint32_t, 16>& v, const std::array<std::size_t, 4>& at,
                  std::uint32_t x, std::uint32_t y) {
    auto &a = v[at[0]], &b = v[at[1]], &c = v[at[2]], &d = v[at[3]];
    a += b + x;
    d = std::rotr(d ^ a, 16);
    c += d;
    b = std::rotr(b ^ c, 12);
    a += b + y;
    d = std::rotr(d ^ a, 8);
    c += d;
    b = std::rotr(b ^ c, 7);
  }

  Words state_ = kStart;
  std::uint64_t count_ = 0;
  bool last_ = false;
};

/// Leaf `index` hashes every eighth block, beginning with its own.
Digest256 Leaf(std::span<const std::uint8_t> bytes, std::size_t index) {
  Node node(static_cast<std::uint32_t>(index), 0, index == kLeaves - 1);
  std::size_t at = index * kBlock;
  for (; at + kLeaves * kBlock < bytes.size(); at += kLeaves * kBlock)
    node.Add(bytes.subspan(at, kBlock), false);
  at = std::min(at, bytes.size());
  node.Add(bytes.subspan(at, std::min(kBlock, bytes.size() - at)), true);
  return node.Result();
}

}  // namespace

Digest256 Blake2sp(std::span<const std::uint8_t> bytes) {
  std::vector<std::uint8_t> leaves;
  for (std::size_t i = 0; i < kLeaves; ++i) {
    const Digest256 leaf = Leaf(bytes, i);
    leaves.insert(leaves.end(), leaf.begin(), leaf.end());
  }
  Node root(0, 1, true);
  const std::span all(leaves);
  for (std::size_t at = 0; at < all.size(); at += kBlock)
    root.Add(all.subspan(at, kBlock), at + kBlock == all.size());
  return root.Result();
}

}  // namespace coilrun
