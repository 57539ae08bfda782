#include "model/scan_to_char.h"

#include "ports/scan_codes.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

/// Characters of the scan codes 0 to 57 in Windows-1252; a blank stands for a key without a
/// character (the space bar is handled elsewhere).
using KeyRow = std::string_view;

constexpr KeyRow kUsShift = "  !@#$%^&*()_+            {}           :\"  |       <>?    ";
constexpr KeyRow kDeBase =
    "  1234567890\xDF\xB4  qwertzuiop\xFC+  asdfghjkl\xF6\xE4  #yxcvbnm,.-    ";
constexpr KeyRow kDeShift = "  !\"\xA7$%&/()=?`             *               '       ;:_    ";
static_assert(kUsCharacters.size() == 58 && kUsShift.size() == 58);
static_assert(kDeBase.size() == 58 && kDeShift.size() == 58);

}  // namespace

std::string ScanToChar(int scanCode, bool shift, KeyboardLayout layout) {
  if (scanCode == kKeySpace) return " ";
  if (scanCode < 0 || scanCode > kKeyLastCharacter) return {};
  const auto key = static_cast<std::size_t>(scanCode);
  const bool german = layout == KeyboardLayout::kDe;
  char character = (german ? kDeBase : kUsCharacters)[key];
  if (character == ' ') return {};
  if (shift) {
    const char shifted = (german ? kDeShift : kUsShift)[key];
    character = shifted != ' ' ? shifted : UpperCase(character);
  }
  return {character};
}

}  // namespace coilrun
