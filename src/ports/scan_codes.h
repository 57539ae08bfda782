#pragma once

#include <string_view>

namespace coilrun {

/// Scan codes of the keys that have a fixed meaning, and of controllers.
enum Key : int {
  kKeyEscape = 1,
  kKeyFirstCharacter = 2,
  kKeyBackspace = 14,
  kKeyTab = 15,
  kKeyEnter = 28,
  kKeyLeftShift = 42,
  kKeyRightShift = 54,
  kKeyLastCharacter = 57,
  kKeySpace = 57,
  kKeyF1 = 59,
  kKeyF2 = 60,
  kKeyF3 = 61,
  kKeyF4 = 62,
  kKeyPause = 197,
  kKeyUp = 200,
  kKeyLeft = 203,
  kKeyRight = 205,
  kKeyDown = 208,
  kKeyN = 49,
  kLastSteeringKey = 239,
  kFirstPadCode = 240,  ///< up, down, left, right of the first controller, then of the second ...
};

inline constexpr int kPadDirections = 4;
/// The highest code that exists.
inline constexpr int kLastScanCode = 255;

/// What the keys of the US layout type, by scan code; a blank stands for a key without a character
/// (the space bar is handled elsewhere).
inline constexpr std::string_view kUsCharacters =
    "  1234567890-=  qwertyuiop[]  asdfghjkl;'  \\zxcvbnm,./    ";

}  // namespace coilrun
