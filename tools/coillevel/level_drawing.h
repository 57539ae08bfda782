#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace coilrun {

/// Draws the level as it starts, with the pictures of a program folder, into a PNG file the size of
/// the screen. Returns what went wrong, in words; "" when all went well. Nothing is written into
/// the program folder.
std::string DrawLevel(std::string_view text, const std::filesystem::path& programFolder,
                      const std::filesystem::path& picture);

}  // namespace coilrun
