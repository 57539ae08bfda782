#include "platform/rar/entry_name.h"

#include <algorithm>
#include <cctype>

namespace coilrun {
namespace {

bool IsControl(char letter) {
  const auto code = static_cast<unsigned char>(letter);
  return code < 0x20 || code == 0x7F;
}

bool NamesDrive(std::string_view part) {
  return part.size() >= 2 && part[1] == ':' && std::isalpha(static_cast<unsigned char>(part[0]));
}

/// True for two dots or more; some systems drop blanks after them.
bool LeadsUp(std::string_view part) {
  return part.starts_with("..") && part.find_first_not_of(". ") == std::string_view::npos;
}

}  // namespace

std::string NameProblem(std::string_view name) {
  constexpr std::string_view kSeparators = "/\\";
  if (name.empty()) return "it has no name";
  if (std::any_of(name.begin(), name.end(), IsControl)) return "its name holds control characters";
  if (kSeparators.find(name.front()) != std::string_view::npos) return "its name is absolute";
  while (!name.empty()) {
    const std::string_view part = name.substr(0, name.find_first_of(kSeparators));
    if (NamesDrive(part)) return "its name is absolute";
    if (LeadsUp(part)) return "its name leads out of the folder";
    name.remove_prefix(std::min(part.size() + 1, name.size()));
  }
  return {};
}

}  // namespace coilrun
