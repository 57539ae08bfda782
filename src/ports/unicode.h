#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace coilrun {

/// Stands for bytes or units that are not well-formed text.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

struct Utf8Character {
  char32_t codePoint = kReplacementCharacter;
  std::size_t length = 1;  ///< in bytes
};

/// The first character of a text that is not empty. A broken sequence takes up one byte and reads
/// as the replacement character.
Utf8Character FirstUtf8Character(std::string_view text);
/// True when the whole text is well-formed UTF-8.
bool IsUtf8(std::string_view text);
void AppendUtf8(std::string& text, char32_t codePoint);

std::string Utf8FromUtf16(std::u16string_view units);
std::u16string Utf16FromUtf8(std::string_view text);

}  // namespace coilrun
