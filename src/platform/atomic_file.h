#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <system_error>

namespace coilrun {

/// Replaces the whole file, making its folder when needed: after a crash at any moment either the
/// old or the new contents are there. `contents` is called while no other process can replace the
/// file; it returns nothing to call the replacement off. Permissions stay as they are. An error
/// leaves the old file untouched.
std::error_code ReplaceFile(const std::filesystem::path& file,
                            const std::function<std::optional<std::string>()>& contents);

}  // namespace coilrun
