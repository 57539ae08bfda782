#include "platform/rar/byte_writer.h"

namespace coilrun {

void ByteWriter::Add(std::span<const std::uint8_t> more) {
  bytes_.insert(bytes_.end(), more.begin(), more.end());
}

}  // namespace coilrun
