#include "model/more.h"

#include <algorithm>
#include <charconv>

#include "ports/scan_codes.h"

namespace coilrun {
std::string RivalText(const RivalList& rivals) {
  std::string text;
  for (const RivalKind kind : rivals.kinds) {
    if (!text.empty()) text += ',';
    text += Word(kind);
  }
  return text;
}

std::optional<RivalList> RivalsFromText(std::string_view text) {
  RivalList rivals{{}};
  while (true) {
    const std::size_t end = std::min(text.find(','), text.size());
    const auto kind = FromWord<RivalKind>(text.substr(0, end));
    if (!kind) return std::nullopt;
    rivals.kinds.push_back(*kind);
    if (end == text.size()) return rivals;
    text.remove_prefix(end + 1);
  }
}

std::optional<std::vector<int>> KeyCodesFromText(std::string_view text) {
  std::vector<int> codes;
  while (true) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (text.empty()) return codes;
    const std::string_view word = text.substr(0, text.find(' '));
    int code = 0;
    const auto [end, error] = std::from_chars(word.begin(), word.end(), code);
    const bool isCode = error == std::errc{} && end == word.end() && CanSteer(code);
    if (!isCode || codes.size() == SteeringKeys::kMostCodes) return std::nullopt;
    codes.push_back(code);
    text.remove_prefix(word.size());
  }
}

std::string KeyCodesText(const std::vector<int>& codes) {
  std::string text;
  for (const int code : codes) text += (text.empty() ? "" : " ") + std::to_string(code);
  return text;
}

bool CanSteer(int code) {
  constexpr std::array<int, 8> kOthers = {kKeyEscape, kKeyTab, kKeyEnter, kKeyF1,
                                          kKeyF2,     kKeyF3,  kKeyF4,    kKeyPause};
  return code >= 1 && code <= kLastSteeringKey &&
         std::find(kOthers.begin(), kOthers.end(), code) == kOthers.end();
}

SteeringKeys BuiltInKeys(int person) {
  if (person != 1) return {};
  return {{kKeyUp}, {kKeyDown}, {kKeyLeft}, {kKeyRight}};
}

}  // namespace coilrun
