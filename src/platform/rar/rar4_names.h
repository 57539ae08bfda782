#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace coilrun {

/// The UTF-8 name of a generation 4 entry. A name marked as Unicode is UTF-8 or has two parts: a
/// single-byte name, a zero, and how its UTF-16 form differs. Other names are read as UTF-8 if they
/// are well-formed, otherwise as Windows-1252. Backslashes become slashes.
std::string DecodeRar4Name(std::span<const std::uint8_t> stored, bool unicode);

}  // namespace coilrun
