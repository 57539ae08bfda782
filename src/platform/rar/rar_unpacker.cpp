#include "platform/rar/rar_unpacker.h"

#include <algorithm>

namespace coilrun {
namespace {

/// An intact archive has no empty data blocks; so many in a row mean that no more data will come.
constexpr int kMaxEmptyBlocks = 1000;

std::optional<Bytes> ReadContents(archive* handle, std::uint64_t size) {
  Bytes contents;
  int empty = 0;
  while (contents.size() <= size && empty < kMaxEmptyBlocks) {
    const void* data = nullptr;
    std::size_t count = 0;
    la_int64_t offset = 0;
    const int result = archive_read_data_block(handle, &data, &count, &offset);
    if (result == ARCHIVE_EOF) break;
    if (result != ARCHIVE_OK && result != ARCHIVE_WARN) return std::nullopt;
    const auto* const bytes = static_cast<const std::uint8_t*>(data);
    if (count > 0 && static_cast<std::uint64_t>(offset) != contents.size()) return std::nullopt;
    if (count > size - contents.size()) return std::nullopt;
    contents.insert(contents.end(), bytes, bytes + count);
    empty = count > 0 ? 0 : empty + 1;
  }
  if (contents.size() != size) return std::nullopt;
  return contents;
}

}  // namespace

RarUnpacker::RarUnpacker(int generation, const std::vector<CompressedItem>& items)
    : archive_(generation == 4 ? RepackRar4(items.front()) : RepackRar5(items)) {
  for (const CompressedItem& item : items) sizes_.push_back(item.size);
}

std::optional<Bytes> RarUnpacker::Unpack(std::size_t index) {
  if (damaged_ && index >= *damaged_) return std::nullopt;
  auto contents = ReadThrough(index);
  if (!contents) {
    damaged_ = index;
    handle_.reset();
  }
  return contents;
}

std::optional<Bytes> RarUnpacker::ReadThrough(std::size_t index) {
  if ((!handle_ || index < next_) && !Open()) return std::nullopt;
  while (next_ < index) {
    if (!Next()) return std::nullopt;
  }
  return Next();
}

bool RarUnpacker::Open() {
  next_ = 0;
  handle_.reset(archive_read_new());
  archive_read_support_format_rar(handle_.get());
  archive_read_support_format_rar5(handle_.get());
  const int result = archive_read_open_memory(handle_.get(), archive_.data(), archive_.size());
  if (result != ARCHIVE_OK) handle_.reset();
  return handle_ != nullptr;
}

std::optional<Bytes> RarUnpacker::Next() {
  archive_entry* entry = nullptr;
  if (archive_read_next_header(handle_.get(), &entry) != ARCHIVE_OK) return std::nullopt;
  return ReadContents(handle_.get(), sizes_[next_++]);
}

}  // namespace coilrun
