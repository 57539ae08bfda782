#include "model/numbers.h"

#include <array>
#include <cctype>
#include <charconv>
#include <cstdint>
#include <limits>

#include "ports/windows_1252.h"

namespace coilrun {
namespace {

std::string WithoutBlanks(std::string_view text, bool commaIsPoint) {
  std::string kept;
  for (const char character : text) {
    if (character == ' ' || character == '\t' || character == '\n') continue;
    kept += commaIsPoint && character == ',' ? '.' : character;
  }
  return kept;
}

std::optional<int> RoundInto(double number, double lowest, double highest) {
  const double rounded = RoundHalfEven(number);
  if (!(rounded >= lowest && rounded <= highest)) return std::nullopt;
  return static_cast<int>(rounded);
}

/// Keeps out words like "inf", which from_chars reads too: a number's sign is followed by a digit
/// or a point.
bool StartsLikeANumber(std::string_view text) {
  return !text.empty() &&
         (std::isdigit(static_cast<unsigned char>(text[0])) != 0 || text[0] == '.');
}

/// The stand-in for a number beyond the range of doubles: 0, or the largest.
double OutOfRange(std::string_view digits) {
  const bool tiny = digits.find_first_of("eE") != digits.npos
                        ? digits.find("e-") != digits.npos || digits.find("E-") != digits.npos
                        : digits.find_first_not_of("0.") > digits.find('.');
  return tiny ? 0 : std::numeric_limits<double>::max();
}

struct ParsedNumber {
  double value = 0;
  std::size_t length = 0;
};

/// The longest number at the start of `text`, if there is one.
std::optional<ParsedNumber> ParseAtStart(std::string_view text) {
  const bool negative = text.starts_with('-');
  const std::size_t sign = negative || text.starts_with('+') ? 1 : 0;
  text.remove_prefix(sign);
  if (!StartsLikeANumber(text)) return std::nullopt;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::invalid_argument) return std::nullopt;
  const auto length = static_cast<std::size_t>(end - text.data());
  if (error == std::errc::result_out_of_range) value = OutOfRange(text.substr(0, length));
  return ParsedNumber{negative ? -value : value, sign + length};
}

}  // namespace

double LeadingNumber(std::string_view text, bool commaIsPoint) {
  return ParseAtStart(WithoutBlanks(text, commaIsPoint)).value_or(ParsedNumber{}).value;
}

std::optional<double> WholeNumber(std::string_view text, bool commaIsPoint) {
  const std::string digits = WithoutBlanks(text, commaIsPoint);
  const auto number = ParseAtStart(digits);
  if (!number || number->length != digits.size()) return std::nullopt;
  return number->value;
}

std::optional<int> ToInt16(double number) {
  return RoundInto(number, std::numeric_limits<std::int16_t>::min(),
                   std::numeric_limits<std::int16_t>::max());
}

std::optional<int> ToInt32(double number) {
  return RoundInto(number, std::numeric_limits<std::int32_t>::min(),
                   std::numeric_limits<std::int32_t>::max());
}

std::optional<bool> ToBoolean(std::string_view text) {
  const std::string word = FoldCase(text);
  if (word == "true") return true;
  if (word == "false") return false;
  const auto number = WholeNumber(text);
  if (!number) return std::nullopt;
  return *number != 0;
}

std::string NumberText(double number) {
  std::array<char, 32> buffer{};
  constexpr double kExactInteger = 1e15;
  const bool whole = number == std::floor(number) && std::abs(number) < kExactInteger;
  const auto result =
      whole ? std::to_chars(buffer.begin(), buffer.end(), static_cast<std::int64_t>(number))
            : std::to_chars(buffer.begin(), buffer.end(), number);
  return {buffer.begin(), result.ptr};
}

std::string BooleanText(bool value) {
  return value ? "True" : "False";
}

}  // namespace coilrun
