#include "render/copy_rows.h"

#include <bit>
#include <utility>

#include "ports/screen.h"

namespace coilrun {
namespace {

// What follows is compiled once for each register size. Drawing is most of a frame's work, and this
// is most of drawing.

template <std::size_t kPixels>
struct Block {
  using Type
      [[gnu::vector_size(kPixels * sizeof(Pixel)), gnu::aligned(alignof(Pixel)), gnu::may_alias]] =
          Pixel;
};

template <std::size_t kPixels>
[[gnu::always_inline]] inline void CopyBlock(const Pixel* from, Pixel* to) {
  using Type = typename Block<kPixels>::Type;
  *reinterpret_cast<Type*>(to) = *reinterpret_cast<const Type*>(from);  // NOLINT: may alias
}

/// Copies blocks of `kBlock` pixels and a last, narrower one that ends where the row ends and may
/// overlap pixels that are already copied.
template <std::size_t kBlock, std::size_t kWidth>
[[gnu::always_inline]] inline void CopyRow(const Pixel* from, Pixel* to) {
  if constexpr (kWidth < kBlock) {
    CopyRow<kBlock / 2, kWidth>(from, to);
  } else {
    constexpr std::size_t kRest = kWidth % kBlock;
    constexpr std::size_t kBlocks = kWidth - kRest;
    for (std::size_t at = 0; at < kBlocks; at += kBlock) CopyBlock<kBlock>(from + at, to + at);
    if constexpr (kRest > 0) {
      constexpr std::size_t kLast = kWidth - std::bit_ceil(kRest);
      CopyBlock<kWidth - kLast>(from + kLast, to + kLast);
    }
  }
}

/// What is left to copy.
struct Cursor {
  const std::uint32_t* place;
  const Pixel* from;
};

template <std::size_t kBlock, std::size_t kWidth>
[[gnu::always_inline]] inline void CopyStacked(Cursor& cursor, std::uint32_t rows, Pixel* to) {
  Pixel* row = to + *cursor.place++;
  const Pixel* const end = row + std::size_t{rows} * kScreenWidth;
  do {
    CopyRow<kBlock, kWidth>(cursor.from, row);
    cursor.from += kWidth;
    row += kScreenWidth;
  } while (row != end);
}

template <std::size_t kBlock, std::size_t kWidth>
[[gnu::always_inline]] inline void CopyScattered(Cursor& cursor, std::uint32_t rows, Pixel* to) {
  const std::uint32_t* const end = cursor.place + rows;
  do {
    CopyRow<kBlock, kWidth>(cursor.from, to + *cursor.place);
    cursor.from += kWidth;
  } while (++cursor.place != end);
}

/// A number for each way to copy a group, so that a single jump selects it.
constexpr std::size_t NumberOf(RowGroup group) {
  return std::size_t{2} * (group.width - 1U) + (group.stacked ? 1 : 0);
}
constexpr std::size_t kNumbers = std::size_t{2} * kWidestRow;

template <std::size_t kBlock, std::size_t kNumber>
[[gnu::always_inline]] inline bool CopyGroup(std::uint32_t rows, Cursor& cursor, Pixel* to) {
  constexpr std::size_t kWidth = 1 + kNumber / 2;
  kNumber % 2 == 0 ? CopyScattered<kBlock, kWidth>(cursor, rows, to)
                   : CopyStacked<kBlock, kWidth>(cursor, rows, to);
  return true;
}

/// The compiler turns this into that jump.
template <std::size_t kBlock, std::size_t... kIndices>
[[gnu::always_inline]] inline void CopyGroup(RowGroup group, Cursor& cursor, Pixel* to,
                                             std::index_sequence<kIndices...>) {
  const std::size_t number = NumberOf(group);
  ((number == kIndices && CopyGroup<kBlock, kIndices>(group.rows, cursor, to)) || ...);
}

template <std::size_t kBlock>
[[gnu::always_inline]] inline void CopyGroups(const PixelRows& rows, Pixel* to) {
  Cursor cursor{rows.places.data(), rows.pixels.data()};
  for (const RowGroup group : rows.groups) {
    CopyGroup<kBlock>(group, cursor, to, std::make_index_sequence<kNumbers>{});
  }
}

#if defined(__x86_64__)
[[gnu::target("avx2")]] void CopyRows32Bytes(const PixelRows& rows, Pixel* to) {
  CopyGroups<8>(rows, to);
}
#endif

void CopyRows16Bytes(const PixelRows& rows, Pixel* to) {
  CopyGroups<4>(rows, to);
}

}  // namespace

std::vector<RowCopier> RowCopiers() {
#if defined(__x86_64__)
  if (__builtin_cpu_supports("avx2")) return {CopyRows32Bytes, CopyRows16Bytes};
#endif
  return {CopyRows16Bytes};
}

}  // namespace coilrun
