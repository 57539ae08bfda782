#include "platform/rar/rar5_format.h"

#include "platform/rar/checksums.h"

namespace coilrun::rar5 {

void AddHeader(ByteWriter& archive, const Bytes& fields) {
  ByteWriter checked;
  checked.Vint(fields.size());
  checked.Add(fields);
  archive.U32(Crc32(checked.Written()));
  archive.Add(checked.Written());
}

}  // namespace coilrun::rar5
