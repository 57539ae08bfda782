#include "platform/ini_text.h"

#include <algorithm>

#include "ports/unicode.h"

namespace coilrun {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool IsControl(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return byte < 0x20 || byte == 0x7F;
}

bool IsBadControl(char character) {
  return IsControl(character) && character != '\t' && character != '\r' && character != '\n';
}

/// Lines end in LF, CR or both.
std::size_t LineEndSize(std::string_view text) {
  if (text.starts_with("\r\n")) return 2;
  return std::min<std::size_t>(text.size(), 1);
}

bool IsGoodLine(std::string_view line) {
  const std::size_t first = line.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return true;
  line.remove_prefix(first);
  switch (line.front()) {
    case ';':
    case '#':
      return true;
    case '[':
      return line.find(']') != std::string_view::npos;
    case '=':
      return false;
    default:
      return line.find('=') != std::string_view::npos;
  }
}

bool IsQuoted(std::string_view text) {
  return text.size() >= 2 && text.front() == '"' && text.back() == '"';
}

}  // namespace

std::optional<std::string> FindIniDamage(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  if (std::any_of(text.begin(), text.end(), IsBadControl)) return "it holds control characters";
  if (!IsUtf8(text)) return "it is not UTF-8 text";
  for (int number = 1; !text.empty(); ++number) {
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    if (!IsGoodLine(line))
      return "line " + std::to_string(number) + " is neither a section nor a key with a value";
    text.remove_prefix(line.size());
    text.remove_prefix(LineEndSize(text));
  }
  return std::nullopt;
}

std::string QuoteIniValue(std::string_view value) {
  std::string text(value);
  std::replace_if(text.begin(), text.end(), IsControl, ' ');
  const bool blankEnd = !text.empty() && (text.front() == ' ' || text.back() == ' ');
  return blankEnd || IsQuoted(text) ? "\"" + text + "\"" : text;
}

std::string UnquoteIniValue(std::string_view stored) {
  if (IsQuoted(stored)) stored = stored.substr(1, stored.size() - 2);
  return std::string(stored);
}

}  // namespace coilrun
