#include "menus/key_names.h"

#include <algorithm>
#include <array>

#include "model/scan_to_char.h"
#include "ports/scan_codes.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

struct Named {
  int code;
  std::string_view name;
};
constexpr std::array kNamed = {Named{kKeyUp, "arrow up"},
                               Named{kKeyDown, "arrow down"},
                               Named{kKeyLeft, "arrow left"},
                               Named{kKeyRight, "arrow right"},
                               Named{kKeySpace, "space"},
                               Named{kKeyBackspace, "backspace"},
                               Named{29, "left Ctrl"},
                               Named{kKeyLeftShift, "left Shift"},
                               Named{kKeyRightShift, "right Shift"},
                               Named{56, "left Alt"},
                               Named{58, "Caps Lock"},
                               Named{63, "F5"},
                               Named{64, "F6"},
                               Named{65, "F7"},
                               Named{66, "F8"},
                               Named{67, "F9"},
                               Named{68, "F10"},
                               Named{87, "F11"},
                               Named{88, "F12"},
                               Named{69, "Num Lock"},
                               Named{71, "pad 7"},
                               Named{72, "pad 8"},
                               Named{73, "pad 9"},
                               Named{74, "pad -"},
                               Named{75, "pad 4"},
                               Named{76, "pad 5"},
                               Named{77, "pad 6"},
                               Named{78, "pad +"},
                               Named{79, "pad 1"},
                               Named{80, "pad 2"},
                               Named{81, "pad 3"},
                               Named{82, "pad 0"},
                               Named{83, "pad ."},
                               Named{55, "pad *"},
                               Named{181, "pad /"},
                               Named{156, "pad Enter"},
                               Named{157, "right Ctrl"},
                               Named{184, "right Alt"},
                               Named{199, "Home"},
                               Named{207, "End"},
                               Named{201, "page up"},
                               Named{209, "page down"},
                               Named{210, "Insert"},
                               Named{211, "Delete"}};

}  // namespace

std::string KeyName(int scanCode, KeyboardLayout layout) {
  const auto* const found = std::find_if(
      kNamed.begin(), kNamed.end(), [scanCode](Named named) { return named.code == scanCode; });
  if (found != kNamed.end()) return std::string{found->name};
  const std::string character = ScanToChar(scanCode, false, layout);
  if (!character.empty()) return {UpperCase(character.front())};
  return "key " + std::to_string(scanCode);
}

}  // namespace coilrun
