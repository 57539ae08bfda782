#pragma once

#include <cstdint>
#include <span>

#include "platform/rar/rar_entry.h"
#include "platform/rar/rar_keys.h"

namespace coilrun {

bool IsRar4(std::span<const std::uint8_t> archive);
/// Walks an archive of generations 1.5 to 4.x. `keys` holds the password in case the headers are
/// encrypted.
RarListing ListRar4(std::span<const std::uint8_t> archive, RarKeyRing& keys);

}  // namespace coilrun
