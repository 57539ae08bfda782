#pragma once

#include <cmath>
#include <optional>
#include <string>
#include <string_view>

namespace coilrun {

/// The nearest whole number, halves to the even neighbour.
inline double RoundHalfEven(double value) {
  return std::nearbyint(value);
}
inline int RoundToInt(double value) {
  return static_cast<int>(std::nearbyint(value));
}

/// The number at the start of a text: blanks, tabs and line feeds are dropped wherever they are,
/// then sign, digits, decimal point and exponent are read as far as they form a number. 0 if there
/// is none. A ',' is a decimal point only when asked for.
double LeadingNumber(std::string_view text, bool commaIsPoint = false);

/// The number that the whole text forms, with or without blanks around it; nothing otherwise.
std::optional<double> WholeNumber(std::string_view text, bool commaIsPoint = false);

/// `LeadingNumber` rounded into 16 or 32 bits; nothing when it does not fit.
std::optional<int> ToInt16(double number);
std::optional<int> ToInt32(double number);

/// "True"/"False" in any letter case, or a number (0 is false); nothing for any other text.
std::optional<bool> ToBoolean(std::string_view text);

/// Plain decimal: whole numbers without a fraction, others with as few digits as read back the
/// same.
std::string NumberText(double number);
/// "True" or "False".
std::string BooleanText(bool value);

}  // namespace coilrun
