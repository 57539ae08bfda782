#pragma once

#include <cstdint>
#include <span>

#include "platform/rar/rar_entry.h"
#include "platform/rar/rar_keys.h"

namespace coilrun {

bool IsRar5(std::span<const std::uint8_t> archive);
/// Walks an archive of generation 5. `keys` holds the password in case the headers are encrypted.
RarListing ListRar5(std::span<const std::uint8_t> archive, RarKeyRing& keys);

}  // namespace coilrun
