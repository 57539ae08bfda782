#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "ports/bytes.h"

namespace coilrun {

/// A file or folder to be packed. `name` is UTF-8 with slashes, `mtime` in seconds since 1970.
struct RarSource {
  std::string name;
  bool folder = false;
  std::uint32_t mtime = 0;
  Bytes contents;
};

/// A stored (uncompressed) archive of generation 5. With a password (UTF-8) the contents are
/// encrypted, the names are not. The same sources and password always give the same archive.
/// Nothing when libcrypto fails.
std::optional<Bytes> WriteRar(std::span<const RarSource> sources, const std::string& password);

}  // namespace coilrun
