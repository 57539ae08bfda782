#pragma once

#include <string>
#include <string_view>

namespace coilrun {

/// Texts are Windows-1252 inside the game and its files; the screen, the settings file and the
/// trace need UTF-8.
std::string ToUtf8(std::string_view windows1252);
/// The reverse; characters that Windows-1252 lacks and broken sequences become '?'.
std::string FromUtf8(std::string_view utf8);

/// The other case of a letter, umlauts included; any other character unchanged.
char LowerCase(char character);
char UpperCase(char character);
/// The text in lower case, umlauts included, for comparing names without regard to case.
std::string FoldCase(std::string_view windows1252);

}  // namespace coilrun
