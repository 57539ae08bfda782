#pragma once

#include <filesystem>
#include <string_view>

namespace coilrun {

/// Replaces the whole file, making its folder when needed: after a crash at any moment the old or
/// the new contents are there. False when that is not possible; the old file is then untouched.
bool ReplaceFile(const std::filesystem::path& file, std::string_view contents);

}  // namespace coilrun
