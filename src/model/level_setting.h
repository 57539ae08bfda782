#pragma once

#include <optional>

namespace coilrun {

/// A setting that a level may replace while it is played. Reads as the value in force; only the
/// player's own value is ever shown by the options or stored.
template <typename T>
class LevelSetting {
 public:
  constexpr LevelSetting(T own)  // NOLINT(google-explicit-constructor): a value is the player's
      : own_(own) {}

  constexpr operator T() const {  // NOLINT(google-explicit-constructor): reads as its value
    return forLevel_.value_or(own_);
  }
  constexpr const T& Own() const { return own_; }
  /// The player's value, which a level's value goes on hiding.
  constexpr T& Own() { return own_; }
  constexpr void ReplaceForLevel(T value) { forLevel_ = value; }

 private:
  T own_;
  std::optional<T> forLevel_;
};

}  // namespace coilrun
