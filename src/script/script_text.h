#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>

namespace coilrun {

/// What separates the words of a script.
inline constexpr std::string_view kBlanks = " \t";

std::string_view WithoutBlanksInFront(std::string_view text);
std::string_view WithoutBlanksBehind(std::string_view text);
std::string_view WithoutBlanksAround(std::string_view text);

/// The number that the whole text forms, or nothing.
template <typename Number>
std::optional<Number> NumberOf(std::string_view text) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc{} || result.ptr != end) return std::nullopt;
  return number;
}

/// A piece of a script as a message shows it: in quotes, cut short if it is long, and without
/// control characters.
std::string Quoted(std::string_view text);

}  // namespace coilrun
