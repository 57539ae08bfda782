#include "platform/rar/rar_repack.h"

#include <algorithm>

#include "platform/rar/byte_writer.h"
#include "platform/rar/checksums.h"
#include "platform/rar/rar4_format.h"
#include "platform/rar/rar5_format.h"
#include "ports/byte_reader.h"

namespace coilrun {
namespace {

/// The decompressor has no use for names, but it insists on one.
constexpr std::uint8_t kName = 'x';

/// The largest dictionary that libarchive takes: 64 MiB.
constexpr unsigned kWidestWindow = 9;

constexpr std::uint8_t kSolidArchive = 0x04;

void AddHeader4(ByteWriter& archive, std::uint8_t type, std::uint16_t flags, const Bytes& fields) {
  ByteWriter checked;
  checked.U8(type);
  checked.U16(flags);
  checked.U16(7 + fields.size());
  checked.Add(fields);
  archive.U16(Crc32(checked.Written()));
  archive.Add(checked.Written());
}

void AddFile(ByteWriter& archive, const CompressedItem& item, unsigned window, bool solid) {
  ByteWriter file;
  file.Vint(rar5::kFile);
  file.Vint(rar5::kHasData);
  file.Vint(item.data.size());
  file.Vint(0);
  file.Vint(item.size);
  file.Vint(0);
  file.Vint(window << 10 | static_cast<unsigned>(item.method) << 7 | (solid ? 0x40U : 0U));
  file.Vint(0);
  file.Vint(1);
  file.U8(kName);
  rar5::AddHeader(archive, file.Written());
  archive.Add(item.data);
}

}  // namespace

Bytes RepackRar4(const CompressedItem& item) {
  ByteWriter archive;
  archive.Add(rar4::kSignature);
  AddHeader4(archive, rar4::kMain, 0, Bytes(6));
  ByteWriter file;
  file.U32(item.data.size());
  file.U32(item.size);
  file.U8(rar4::kHostUnix);
  file.U32(item.crc);
  file.U32(0);
  file.U8(static_cast<std::uint64_t>(item.version));
  file.U8(rar4::kStored + static_cast<unsigned>(item.method));
  file.U16(1);
  file.U32(0100644);
  file.U8(kName);
  AddHeader4(archive, rar4::kFile, static_cast<std::uint16_t>(rar4::kHasData | item.window),
             file.Written());
  archive.Add(item.data);
  AddHeader4(archive, rar4::kEnd, 0, {});
  return archive.Written();
}

Bytes RepackRar5(const std::vector<CompressedItem>& items) {
  unsigned window = 0;
  for (const CompressedItem& item : items) window = std::max(window, item.window);
  window = std::min(window, kWidestWindow);

  ByteWriter archive;
  archive.Add(rar5::kSignature);
  rar5::AddHeader(archive, {rar5::kMain, 0, items.size() > 1 ? kSolidArchive : std::uint8_t{0}});
  for (const CompressedItem& item : items) AddFile(archive, item, window, &item != &items.front());
  rar5::AddHeader(archive, {rar5::kEnd, 0, 0});
  return archive.Written();
}

std::size_t PackedBlocksSize(const Bytes& data) {
  ByteReader reader(data);
  while (reader.Left() > 0) {
    const std::uint8_t flags = reader.U8();
    reader.Skip(1);
    std::size_t size = 0;
    for (unsigned i = 0; i < (flags >> 3 & 3U) + 1; ++i) size |= std::size_t{reader.U8()} << 8 * i;
    reader.Skip(size);
    if (!reader.Ok()) break;
    if ((flags & 0x40) != 0) return reader.Position();
  }
  return data.size();
}

}  // namespace coilrun
