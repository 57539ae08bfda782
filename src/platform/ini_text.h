#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace coilrun {

/// What is wrong with the text of an INI file, in words; nothing when every line is empty, a
/// comment, a section or a key with a value, in UTF-8.
std::optional<std::string> FindIniDamage(std::string_view text);

/// A value as a line of the file can hold it: quoted where blanks at its ends would be lost, with
/// blanks for control characters.
std::string QuoteIniValue(std::string_view value);
std::string UnquoteIniValue(std::string_view stored);

}  // namespace coilrun
