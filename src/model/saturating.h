#pragma once

#include <algorithm>
#include <compare>
#include <cstdint>
#include <limits>

namespace coilrun {

/// A whole number of fixed width that stops at the ends of its range instead of wrapping around.
/// Reads as a plain `int`.
template <typename Stored>
class Saturating {
 public:
  constexpr Saturating() = default;
  constexpr Saturating(
      std::int64_t value)  // NOLINT(google-explicit-constructor): a number is a number
      : value_(static_cast<Stored>(std::clamp<std::int64_t>(value, kMin, kMax))) {}

  template <typename Other>
  constexpr Saturating(Saturating<Other> value)  // NOLINT(google-explicit-constructor): as above
      : Saturating(std::int64_t{int{value}}) {}

  constexpr operator int() const { return value_; }  // NOLINT(google-explicit-constructor)

  constexpr Saturating& operator+=(std::int64_t delta) {
    return *this = Saturating(value_ + delta);
  }
  constexpr Saturating& operator-=(std::int64_t delta) {
    return *this = Saturating(value_ - delta);
  }
  constexpr Saturating& operator++() { return *this += 1; }
  constexpr Saturating& operator--() { return *this -= 1; }

  static constexpr std::int64_t kMin = std::numeric_limits<Stored>::min();
  static constexpr std::int64_t kMax = std::numeric_limits<Stored>::max();

 private:
  Stored value_ = 0;
};

using Int16 = Saturating<std::int16_t>;
using Int32 = Saturating<std::int32_t>;

}  // namespace coilrun
