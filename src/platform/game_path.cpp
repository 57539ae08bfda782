#include "platform/game_path.h"

#include <algorithm>

namespace coilrun {
namespace {

constexpr std::string_view kSeparators = "\\/";
/// Characters that no file name of the game's own world can have; the last five are the control
/// characters of Windows-1252.
constexpr std::string_view kForbidden = ":*?\"<>|\x7f\x81\x8d\x8f\x90\x9d";

bool IsForbidden(char character) {
  return static_cast<unsigned char>(character) < 0x20 ||
         kForbidden.find(character) != std::string_view::npos;
}

/// Names of dots and blanks alone mean the folder itself or the one above it.
bool IsName(std::string_view part) {
  return part.find_first_not_of(". ") != std::string_view::npos &&
         std::none_of(part.begin(), part.end(), IsForbidden);
}

char FoldCharacter(char character) {
  const auto byte = static_cast<unsigned char>(character);
  const bool ascii = byte >= 'A' && byte <= 'Z';
  const bool accented = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
  if (ascii || accented) return static_cast<char>(byte + 0x20);
  switch (byte) {
    case 0x8A:  // S, OE and Z with their signs lie 16 apart.
    case 0x8C:
    case 0x8E:
      return static_cast<char>(byte + 0x10);
    case 0x9F:
      return '\xff';
    default:
      return character;
  }
}

}  // namespace

std::optional<GamePath> ParseGamePath(std::string_view belowRoot) {
  if (!belowRoot.empty() && kSeparators.find(belowRoot.front()) != std::string_view::npos)
    belowRoot.remove_prefix(1);
  if (!belowRoot.empty() && kSeparators.find(belowRoot.back()) != std::string_view::npos)
    belowRoot.remove_suffix(1);
  GamePath path;
  while (!belowRoot.empty()) {
    const std::size_t end = std::min(belowRoot.find_first_of(kSeparators), belowRoot.size());
    const std::string_view part = belowRoot.substr(0, end);
    if (!IsName(part)) return std::nullopt;
    path.emplace_back(part);
    belowRoot.remove_prefix(std::min(end + 1, belowRoot.size()));
  }
  return path;
}

std::string FoldCase(std::string_view windows1252) {
  std::string folded(windows1252);
  std::transform(folded.begin(), folded.end(), folded.begin(), FoldCharacter);
  return folded;
}

}  // namespace coilrun
