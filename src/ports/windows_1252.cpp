#include "ports/windows_1252.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "ports/unicode.h"

namespace coilrun {
namespace {

/// Code points of the bytes 0x80 to 0x9f; the five unused bytes stand for the control characters of
/// the same number.
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t CodePoint(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80U] : char32_t{byte};
}

char ByteOf(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF))
    return static_cast<char>(codePoint);
  const auto* const found = std::find(kUpperControls.begin(), kUpperControls.end(), codePoint);
  if (found == kUpperControls.end()) return '?';
  return static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

}  // namespace

std::string ToUtf8(std::string_view windows1252) {
  std::string utf8;
  for (const char character : windows1252) {
    AppendUtf8(utf8, CodePoint(static_cast<unsigned char>(character)));
  }
  return utf8;
}

std::string FromUtf8(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) {
    const auto [codePoint, length] = FirstUtf8Character(utf8);
    text += ByteOf(codePoint);
    utf8.remove_prefix(length);
  }
  return text;
}

char LowerCase(char character) {
  const auto byte = static_cast<unsigned char>(character);
  const bool ascii = byte >= 'A' && byte <= 'Z';
  const bool accented = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
  if (ascii || accented) return static_cast<char>(byte + 0x20);
  switch (byte) {
    case 0x8A:  // The two cases of accented S and Z and of OE lie 16 apart.
    case 0x8C:
    case 0x8E:
      return static_cast<char>(byte + 0x10);
    case 0x9F:
      return '\xff';
    default:
      return character;
  }
}

char UpperCase(char character) {
  const auto byte = static_cast<unsigned char>(character);
  const bool ascii = byte >= 'a' && byte <= 'z';
  const bool accented = byte >= 0xE0 && byte <= 0xFE && byte != 0xF7;
  if (ascii || accented) return static_cast<char>(byte - 0x20);
  switch (byte) {
    case 0x9A:
    case 0x9C:
    case 0x9E:
      return static_cast<char>(byte - 0x10);
    case 0xFF:
      return '\x9f';
    default:
      return character;
  }
}

std::string FoldCase(std::string_view windows1252) {
  std::string folded(windows1252);
  std::transform(folded.begin(), folded.end(), folded.begin(), LowerCase);
  return folded;
}

}  // namespace coilrun
