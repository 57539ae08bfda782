#include "platform/game_path.h"

#include <algorithm>

namespace coilrun {
namespace {

constexpr std::string_view kSeparators = "\\/";
/// Characters that no file name in the game can have; the last five are the control characters of
/// Windows-1252.
constexpr std::string_view kForbidden = ":*?\"<>|\x7f\x81\x8d\x8f\x90\x9d";

bool IsForbidden(char character) {
  return static_cast<unsigned char>(character) < 0x20 ||
         kForbidden.find(character) != std::string_view::npos;
}

/// Names of nothing but dots and blanks mean the folder itself or the one above it.
bool IsName(std::string_view part) {
  return part.find_first_not_of(". ") != std::string_view::npos &&
         std::none_of(part.begin(), part.end(), IsForbidden);
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

}  // namespace coilrun
