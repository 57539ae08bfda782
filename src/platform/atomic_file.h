#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <system_error>

namespace coilrun {

/// Replaces the whole file, making its folder when needed: after a crash at any moment the old or
/// the new contents are there. `contents` is asked while no other process can replace the file, and
/// may call it off with nothing. Permissions stay as they are. An error leaves the old file as it
/// is.
std::error_code ReplaceFile(const std::filesystem::path& file,
                            const std::function<std::optional<std::string>()>& contents);

}  // namespace coilrun
