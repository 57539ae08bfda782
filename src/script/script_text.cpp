#include "script/script_text.h"

#include <algorithm>

namespace coilrun {

std::string_view WithoutBlanksInFront(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

std::string_view WithoutBlanksBehind(std::string_view text) {
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::string_view WithoutBlanksAround(std::string_view text) {
  return WithoutBlanksBehind(WithoutBlanksInFront(text));
}

std::string Quoted(std::string_view text) {
  constexpr std::size_t kMostShown = 60;
  std::string shown(text.substr(0, kMostShown));
  std::ranges::replace_if(
      shown,
      [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte < 0x20U || byte == 0x7FU;
      },
      '?');
  return '"' + shown + (text.size() > kMostShown ? "...\"" : "\"");
}

}  // namespace coilrun
