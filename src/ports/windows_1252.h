#pragma once

#include <string>
#include <string_view>

namespace coilrun {

/// Texts are Windows-1252 inside the game and its files; the screen, the settings file and the
/// trace want UTF-8.
std::string ToUtf8(std::string_view windows1252);
/// The way back; characters without a place in Windows-1252 and broken sequences become '?'.
std::string FromUtf8(std::string_view utf8);

/// The other case of a letter, umlauts too; any other character as it is.
char LowerCase(char character);
char UpperCase(char character);
/// Lower-case text, umlauts too, for comparing names without regard to case.
std::string FoldCase(std::string_view windows1252);

}  // namespace coilrun
