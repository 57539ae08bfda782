#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <type_traits>

namespace coilrun {

template <std::size_t kCount>
using WordList = std::array<std::string_view, kCount>;

/// The words of an enum in the order of its values, as settings, scripts and traces write them;
/// given beside each enum that has words.
template <typename Enum>
inline constexpr WordList<0> kWords{};

template <typename Enum>
requires std::is_enum_v<Enum>
constexpr std::string_view Word(Enum value) {
  static_assert(!kWords<Enum>.empty());
  return kWords<Enum>.at(static_cast<std::size_t>(value));
}

/// The value with exactly this word: FromWord<Dir>("Left").
template <typename Enum>
constexpr std::optional<Enum> FromWord(std::string_view word) {
  static_assert(!kWords<Enum>.empty());
  const auto found = std::find(kWords<Enum>.begin(), kWords<Enum>.end(), word);
  if (found == kWords<Enum>.end()) return std::nullopt;
  return static_cast<Enum>(found - kWords<Enum>.begin());
}

}  // namespace coilrun
