#include "shell/scan_to_char.h"

#include <array>
#include <cctype>

namespace coilrun {
namespace {

/// Characters of the scan codes 0 to 57 in Windows-1252; a blank is a key without a character (the
/// space bar is apart).
using KeyRow = std::string_view;

constexpr KeyRow kUsBase = "  1234567890-=  qwertyuiop[]  asdfghjkl;'  \\zxcvbnm,./    ";
constexpr KeyRow kUsShift = "  !@#$%^&*()_+            {}           :\"  |       <>?    ";
constexpr KeyRow kDeBase =
    "  1234567890\xDF\xB4  qwertzuiop\xFC+  asdfghjkl\xF6\xE4  #yxcvbnm,.-    ";
constexpr KeyRow kDeShift = "  !\"\xA7$%&/()=?`             *               '       ;:_    ";
static_assert(kUsBase.size() == 58 && kUsShift.size() == 58);
static_assert(kDeBase.size() == 58 && kDeShift.size() == 58);

constexpr int kSpaceBar = 57;
/// Upper-case letters lie this far below their lower-case ones, umlauts too.
constexpr int kCaseDistance = 0x20;

char UpperCase(char character) {
  const auto byte = static_cast<unsigned char>(character);
  const bool umlaut = byte == 0xE4 || byte == 0xF6 || byte == 0xFC;
  const bool letter = byte >= 'a' && byte <= 'z';
  return letter || umlaut ? static_cast<char>(byte - kCaseDistance) : character;
}

}  // namespace

std::string ScanToChar(int scanCode, bool shift, KeyboardLayout layout) {
  if (scanCode == kSpaceBar) return " ";
  if (scanCode < 0 || scanCode > kSpaceBar) return {};
  const auto key = static_cast<std::size_t>(scanCode);
  const bool german = layout == KeyboardLayout::kDe;
  char character = (german ? kDeBase : kUsBase)[key];
  if (character == ' ') return {};
  if (shift) {
    const char shifted = (german ? kDeShift : kUsShift)[key];
    character = shifted != ' ' ? shifted : UpperCase(character);
  }
  return {character};
}

}  // namespace coilrun
