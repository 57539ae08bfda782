#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace coilrun {

/// What is wrong with the text of an INI file, in words; nothing when it is UTF-8 and every line is
/// empty, a comment, a section or a key with a value.
std::optional<std::string> FindIniDamage(std::string_view text);

/// A value in a form that a line of the file can hold: quoted where blanks at its ends would be
/// lost, with control characters turned into blanks.
std::string QuoteIniValue(std::string_view value);
std::string UnquoteIniValue(std::string_view stored);

}  // namespace coilrun
